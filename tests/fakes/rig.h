// A console over fakes that behave, for the tests of its routines.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "core/console_state.h"
#include "core/control_events.h"
#include "core/run_event.h"
#include "fakes/fake_clock.h"
#include "fakes/fake_settings.h"
#include "fakes/memory_files.h"
#include "fakes/scripted_browse_list.h"
#include "fakes/scripted_dialogs.h"
#include "fakes/scripted_directory.h"
#include "fakes/scripted_hosts.h"
#include "fakes/scripted_mail.h"
#include "fakes/scripted_probe.h"
#include "fakes/scripted_windows.h"
#include "fakes/timeline.h"
#include "platform/chart_picture.h"
#include "platform/clipboard.h"
#include "platform/program.h"
#include "platform/shell.h"
#include "platform/workbooks.h"

namespace tessarine::fakes {

class RecordedShell final : public Shell {
  public:
    void open(const std::string& target) override { opened.push_back(target); }
    bool has_program_for(const std::string&) override { return has_programs; }
    std::vector<std::string> opened;
    bool has_programs = true;
};

class RecordedClipboard final : public Clipboard {
  public:
    void clear() override { text.clear(); }
    void set_text(const std::string& its_text) override { text = its_text; }
    std::string picture() override {
        if (its_picture.empty()) throw RuntimeError(ErrorNumber::Failed, "No picture");
        return its_picture;
    }
    std::string text = "left from another program";
    std::string its_picture;
};

/// A chart's picture is its type and its points as words.
class WrittenChartPicture final : public ChartPicture {
  public:
    explicit WrittenChartPicture(RecordedClipboard& clipboard) : clipboard_(clipboard) {}
    void copy_to_clipboard(const Chart& chart) override;

  private:
    RecordedClipboard& clipboard_;
};

class RecordedWorkbooks final : public Workbooks {
  public:
    std::string write(const std::vector<Sheet>& sheets) override;
    std::vector<Sheet> written;  ///< the sheets of the last workbook
    bool fails = false;
};

class FakeProgram final : public Program {
  public:
    std::string application_directory() override { return "/app"; }
    void end() override { ended = true; }
    bool ended = false;
};

/// Every text that the panels of a status bar have shown, one "panel: text" a line.
class StatusHistory final : public RepaintHook {
  public:
    explicit StatusHistory(StatusBar& bar);
    ~StatusHistory() override { bar_.set_repaint_hook(nullptr); }
    StatusHistory(const StatusHistory&) = delete;
    StatusHistory& operator=(const StatusHistory&) = delete;

    void status_changed(StatusChange change) override;
    std::string lines;

  private:
    StatusBar& bar_;
    std::vector<std::string> shown_;
};

/// The settings are at their defaults, so the event store is /app/Data, with no folder made yet.
struct Rig {
    /// `events` is as much of the console's table as forms that are shown modally need.
    explicit Rig(std::span<const ControlEvent> events = {});

    /// Runs a routine as an event of the window does.
    void run(const std::function<void(Console&)>& routine) { run_event(console, routine); }

    /// Fills the host list with these names, none of them selected.
    void list_hosts(const std::vector<std::string>& names);
    /// Selects these rows of a list, and no others; the last one is the selected item.
    static void select(ListControl& list, const std::vector<int>& rows);

    Timeline timeline;
    MemoryFiles files;
    FakeClock clock;
    FakeSettings settings;
    ScriptedProbe probe{timeline};
    ScriptedBrowseList browse;
    ScriptedWindows windows;
    ScriptedDialogs dialogs;
    RecordedClipboard clipboard;
    WrittenChartPicture chart_picture{clipboard};
    RecordedWorkbooks workbooks;
    ScriptedMail mail;
    ScriptedDirectory directory;
    RecordedShell shell;
    FakeProgram program;
    ScriptedHosts network;
    Console console;
};

}  // namespace tessarine::fakes
