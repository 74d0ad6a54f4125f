// The console: all its forms, its shared state, and the platform under it.
#pragma once

#include <memory_resource>
#include <string>

#include "core/form.h"
#include "core/forms/about_form.h"
#include "core/forms/add_host_form.h"
#include "core/forms/connection_check_form.h"
#include "core/forms/custom_audit_form.h"
#include "core/forms/directory_form.h"
#include "core/forms/event_details_form.h"
#include "core/forms/graph_form.h"
#include "core/forms/main_form.h"
#include "core/forms/network_form.h"
#include "core/forms/settings_form.h"
#include "core/regional_text.h"

namespace tessarine {

class BrowseList;
class ChartPicture;
class Clipboard;
class Clock;
class Dialogs;
class DirectoryListing;
class DirectoryService;
class EventSource;
class Files;
class FormWindows;
class MailSender;
class Program;
class SettingsValues;
class Shell;
class TcpProbe;
class Workbooks;

inline constexpr int kVersionMajor = 1;
inline constexpr int kVersionMinor = 3;
inline constexpr int kVersionRevision = 0;

/// Shapes of the mouse pointer.
inline constexpr int kPointerDefault = 0;
inline constexpr int kPointerHourglass = 11;

/// The operations of the platform, each behind an interface of its own.
struct Platform {
    EventSource& event_source;
    Files& files;
    DirectoryListing& directory_listing;
    Clock& clock;
    SettingsValues& settings_values;
    TcpProbe& tcp_probe;
    BrowseList& browse_list;
    FormWindows& form_windows;
    Dialogs& dialogs;
    Clipboard& clipboard;
    ChartPicture& chart_picture;
    Workbooks& workbooks;
    MailSender& mail_sender;
    DirectoryService& directory_service;
    Shell& shell;
    Program& program;
    /// Memory for large tables.
    std::pmr::memory_resource* table_memory = std::pmr::get_default_resource();
    /// Memory for passwords.
    std::pmr::memory_resource* secret_memory = std::pmr::get_default_resource();
};

/// What a click is told while a request to a host has had no answer for so long.
struct PendingRequestMessage {
    std::string text;
    int after = 0;  ///< milliseconds
};

struct Console {
    explicit Console(const Platform& its_platform, RegionalText regional_forms = RegionalText());
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    Platform platform;
    RegionalText regional;

    MainForm Form1;
    Form<EventDetailsForm> Form2;
    Form<SettingsForm> Form3;
    Form<CustomAuditForm> Form4;
    Form<GraphForm> Form5;
    Form<AddHostForm> Form6;
    Form<NetworkForm> Form7;
    Form<ConnectionCheckForm> ConCheck;
    Form<DirectoryForm> frmADS;
    Form<tessarine::AboutForm> AboutForm;

    /// The list of forms: shows `see(form)` each of them, loaded or not.
    template <class Visitor>
    void visit_forms(Visitor&& see) {
        (see(Form1), see(Form2), see(Form3), see(Form4), see(Form5), see(Form6), see(Form7),
         see(ConCheck), see(frmADS), see(AboutForm));
    }

    int mouse_pointer = kPointerDefault;  ///< of the whole screen
    bool started = false;                 ///< set once, when Form1 is first loaded
    PendingRequestMessage pending_request;
    int events_running = 0;   ///< one within the other
    bool end_wanted = false;  ///< the program ends after the running event
};

/// Unloads every loaded form and ends the program, as the menu entry `exit` does.
void end_console(Console& console);

}  // namespace tessarine
