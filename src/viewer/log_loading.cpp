#include "viewer/log_loading.h"

#include <cstdint>
#include <memory>
#include <string_view>

#include "core/console_state.h"
#include "core/error_regime.h"
#include "platform/files.h"
#include "platform/form_windows.h"
#include "store/log_files.h"
#include "store/record_reader.h"

namespace tessarine {
namespace {

void load_records(Console& console, const std::string& path, LineLoading& lines) {
    ErrorRegime errors;
    errors.ignore_from_here();
    errors.run([&] {
        const std::unique_ptr<File> file = console.platform.files.open(path, OpenFor::Reading);
        RecordReader reader(*file);
        std::string_view line;
        while (reader.next(line)) lines.take_line(line);
        file->close();
    });
}

// The path of the host's file; empty when there is none.
std::string path_if_there(Console& console, EventLog log, const std::string& host) {
    ErrorRegime errors;
    errors.ignore_from_here();
    std::string path;
    bool exists = false;
    errors.run([&] {
        path = host_log_path(console.Form3->txtLogPath.text, host, log);
        exists = console.platform.files.file_exists(path);
    });
    return exists ? path : "";
}

bool read_file(Console& console, const LogTable& log_table, const std::string& path,
               LoadCounts& counts) {
    LineLoading lines(console, log_table, counts);
    load_records(console, path, lines);
    counts.total += lines.record_counter();
    return lines.alert();
}

}  // namespace

bool load_log(Console& console, const LogTable& log_table, const std::string& host,
              PendingEvents pending, LoadCounts& counts) {
    FormWindows& windows = console.platform.form_windows;
    if (pending == PendingEvents::BeforeTest) windows.let_events_pass();
    const std::string path = path_if_there(console, log_table.log, host);
    bool alert = false;
    if (!path.empty()) {
        if (pending == PendingEvents::BeforeOpening) windows.let_events_pass();
        alert = read_file(console, log_table, path, counts);
    } else if (!log_table.missing_text.empty()) {
        console.Form1.st1.set_text(1, std::string(log_table.missing_text));
    }
    if (pending == PendingEvents::BehindLog) windows.let_events_pass();
    return alert;
}

void show_totals(Console& console, const LoadCounts& counts) {
    console.Form1.st1.set_text(3,
                               "Total: " + std::to_string(static_cast<std::int64_t>(counts.total)) +
                                   " events    Ignored:" + std::to_string(counts.ignored) +
                                   "    Highlighted:" + std::to_string(counts.highlighted));
}

}  // namespace tessarine
