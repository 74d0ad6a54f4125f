// A platform for the console with the real files and nothing behind the rest.
#pragma once

#include "adapters/system/large_page_memory.h"
#include "adapters/system/local_directory_listing.h"
#include "adapters/system/local_files.h"
#include "adapters/system/private_memory.h"
#include "adapters/system/system_clock.h"
#include "core/console_state.h"
#include "core/runtime_error.h"
#include "platform/browse_list.h"
#include "platform/chart_picture.h"
#include "platform/clipboard.h"
#include "platform/dialogs.h"
#include "platform/directory_service.h"
#include "platform/event_source.h"
#include "platform/form_windows.h"
#include "platform/mail_sender.h"
#include "platform/program.h"
#include "platform/settings_values.h"
#include "platform/shell.h"
#include "platform/tcp_probe.h"
#include "platform/workbooks.h"

namespace tessarine::bench {

class IdleEventSource final : public EventSource {
    std::unique_ptr<EventService> connect_server(const std::string&, const std::string&,
                                                 const std::optional<Credentials>&) override {
        throw RuntimeError(ErrorNumber::Failed, "The bench reaches no hosts");
    }
};

class IdleSettings final : public SettingsValues {
    std::string check() override { return {}; }
    std::optional<StoredValue> read(const std::string&, const std::string&) override { return {}; }
    void write(const std::string&, const std::string&, const StoredValue&) override {}
};

class IdleProbe final : public TcpProbe {
    void connect(const std::string&, int, Events) override {}
    void close() override {}
};

class IdleBrowseList final : public BrowseList {
    BrowseAnswer groups() override { return {}; }
    BrowseAnswer servers(const std::string&) override { return {}; }
};

class IdleWindows final : public FormWindows {
    void let_events_pass() override {}
    void show_modal(FormId) override {}
    void event_ended() override {}
    void pop_up_menu(std::string_view) override {}
};

class IdleDialogs final : public Dialogs {
    MessageAnswer message_box(const std::string&, MessageStyle, const std::string&) override {
        return MessageAnswer::No;
    }
    void beep() override {}
    std::string choose_file(FilePurpose, const std::string&, const std::vector<FileFilter>&,
                            const std::string&) override {
        return {};
    }
    std::string choose_folder(const std::string&) override { return {}; }
    std::string ask_save_name(const std::string&) override { return {}; }
};

class IdleClipboard final : public Clipboard {
    void clear() override {}
    void set_text(const std::string&) override {}
    std::string picture() override { return {}; }
};

class IdleChartPicture final : public ChartPicture {
    void copy_to_clipboard(const Chart&) override {}
};

class IdleWorkbooks final : public Workbooks {
    std::string write(const std::vector<Sheet>&) override { return {}; }
};

class IdleMailSender final : public MailSender {
    void send(const Mail&, MailEvents&) override {}
};

class IdleDirectoryService final : public DirectoryService {
    std::unique_ptr<DirectoryObject> bind(const std::string&) override { return nullptr; }
};

class IdleShell final : public Shell {
    void open(const std::string&) override {}
    bool has_program_for(const std::string&) override { return false; }
};

class IdleProgram final : public Program {
  public:
    std::string application_directory() override { return folder; }
    void end() override {}

    std::string folder = ".";
};

struct IdlePlatform {
    LocalFiles files;
    LocalDirectoryListing directory_listing;
    SystemClock clock;
    LargePageMemory table_memory;
    PrivateMemory secret_memory;
    IdleEventSource event_source;
    IdleSettings settings_values;
    IdleProbe tcp_probe;
    IdleBrowseList browse_list;
    IdleWindows form_windows;
    IdleDialogs dialogs;
    IdleClipboard clipboard;
    IdleChartPicture chart_picture;
    IdleWorkbooks workbooks;
    IdleMailSender mail_sender;
    IdleDirectoryService directory_service;
    IdleShell shell;
    IdleProgram program;

    Platform platform() { return platform(event_source, settings_values); }
    /// The same with hosts and settings of the caller's.
    Platform platform(EventSource& source, SettingsValues& settings) {
        return {.event_source = source,
                .files = files,
                .directory_listing = directory_listing,
                .clock = clock,
                .settings_values = settings,
                .tcp_probe = tcp_probe,
                .browse_list = browse_list,
                .form_windows = form_windows,
                .dialogs = dialogs,
                .clipboard = clipboard,
                .chart_picture = chart_picture,
                .workbooks = workbooks,
                .mail_sender = mail_sender,
                .directory_service = directory_service,
                .shell = shell,
                .program = program,
                .table_memory = &table_memory,
                .secret_memory = &secret_memory};
    }
};

}  // namespace tessarine::bench
