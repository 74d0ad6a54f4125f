#include "viewer/log_loading.h"

#include <array>
#include <cstdint>
#include <memory>

#include "core/console_state.h"
#include "core/error_regime.h"
#include "platform/files.h"
#include "platform/form_windows.h"
#include "store/log_files.h"
#include "store/record_reader.h"
#include "viewer/log_tables.h"
#include "viewer/record_rows.h"

namespace tessarine {
namespace {

constexpr int kTabPlain = 1;
constexpr int kTabAlert = 2;

// Where pending window events run: behind the whole log, or before its file is opened.
enum class PendingEvents { No, BehindLog, BeforeOpening };

// The logs in the order in which they are read.
struct LoadStep {
    const LogTable& table;
    std::string_view missing_text = {};  // what panel 1 says when there is no file
    PendingEvents pending = PendingEvents::No;
};

constexpr std::array kSteps = {
    LoadStep{.table = kSecurityTable,
             .missing_text = "No Security Event log",
             .pending = PendingEvents::BehindLog},
    LoadStep{.table = kSystemTable},
    LoadStep{.table = kApplicationTable, .pending = PendingEvents::BeforeOpening},
};
static_assert(kSteps[0].table.log == EventLog::Security && kSteps[2].table.tab == 2,
              "the logs are read in an order of their own, not in that of the tabs");

// A file that can't be opened or read further ends there, as an empty one would.
void read_records(Console& console, const std::string& path, RecordRows& rows) {
    ErrorRegime errors;
    errors.ignore_from_here();
    errors.run([&] {
        const std::unique_ptr<File> file = console.platform.files.open(path, OpenFor::Reading);
        RecordReader reader(*file);
        std::string_view line;
        while (reader.next(line)) rows.take_line(line);
        file->close();
    });
}

// Loads one log; whether one of its records matched the alert list.
bool load_log(Console& console, const LoadStep& step, const std::string& host, LoadCounts& counts) {
    ErrorRegime errors;
    errors.ignore_from_here();
    std::string path;
    bool exists = false;
    errors.run([&] {
        path = host_log_path(console.Form3->txtLogPath.text, host, step.table.log);
        exists = console.platform.files.file_exists(path);
    });
    if (step.pending == PendingEvents::BeforeOpening && exists)
        console.platform.form_windows.let_events_pass();
    if (!exists) {
        if (!step.missing_text.empty())
            console.Form1.st1.set_text(1, std::string(step.missing_text));
        return false;
    }
    RecordRows rows(console, step.table, counts);
    read_records(console, path, rows);
    counts.total += rows.record_counter();
    return rows.alert();
}

void show_totals(Console& console, const LoadCounts& counts) {
    console.Form1.st1.set_text(3,
                               "Total: " + std::to_string(static_cast<std::int64_t>(counts.total)) +
                                   " events    Ignored:" + std::to_string(counts.ignored) +
                                   "    Highlighted:" + std::to_string(counts.highlighted));
}

}  // namespace

void vieweventlogs(Console& console) {
    MainForm& form = console.Form1;
    form.SystemList.set_sorted(false);
    form.ApplicationList.set_sorted(false);
    const int row = form.ListView1.selected_item();
    if (row == 0) return;
    const std::string host(form.ListView1.row(row).text());
    ViewEventLog(console, host);
    form.txtSelectedHost.text = "Host: " + host;
}

void ViewEventLog(Console& console, const std::string& HostName) {
    MainForm& form = console.Form1;
    form.List1Index.text = std::to_string(form.ListView1.selected_item());
    form.SystemList.clear();
    form.ApplicationList.clear();
    form.SecurityList.clear();
    form.st1.set_text(1, "Please wait ...");
    if (form.ListView1.selected_count() > 1) {
        form.st1.set_text(1, "");
        return;
    }
    console.platform.form_windows.let_events_pass();
    console.mouse_pointer = kPointerHourglass;
    LoadCounts counts;
    std::array<bool, 4> alerts{};  // by tab
    for (const LoadStep& step : kSteps) {
        alerts[static_cast<std::size_t>(step.table.tab)] =
            load_log(console, step, HostName, counts);
        if (step.pending == PendingEvents::BehindLog)
            console.platform.form_windows.let_events_pass();
    }
    for (const int tab : {1, 3, 2})
        form.TabStrip2.tab(tab).image =
            alerts[static_cast<std::size_t>(tab)] ? kTabAlert : kTabPlain;
    console.platform.form_windows.let_events_pass();
    console.mouse_pointer = kPointerDefault;
    // The empty text also wipes what was said of a missing security log.
    form.st1.set_text(1, "");
    show_totals(console, counts);
}

}  // namespace tessarine
