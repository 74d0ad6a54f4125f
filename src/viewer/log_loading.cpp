#include "viewer/log_loading.h"

#include <cstdint>
#include <memory>
#include <string>

#include "core/console_state.h"
#include "platform/files.h"
#include "platform/form_windows.h"
#include "store/log_files.h"
#include "store/record_reader.h"

namespace tessarine {
namespace {

// The path of the host's file; empty when there is none.
std::string path_if_there(const Load& load, EventLog log) {
    std::string path;
    bool exists = false;
    load.errors.run([&] {
        path = host_log_path(load.console.platform.files, load.console.Form3->txtLogPath.text,
                             load.host, log);
        exists = load.console.platform.files.file_exists(path);
    });
    return exists ? path : "";
}

void load_lines(Load& load, const LoadedLog& log, const std::string& path) {
    LineLoading lines(load, log);
    load.errors.run([&] {
        const auto file = load.console.platform.files.open(path, OpenFor::Reading);
        RecordReader reader(*file);
        std::string_view line;
        while (reader.next(line)) lines.take_line(line);
        file->close();
    });
    load.counts.total += lines.record_counter();
}

}  // namespace

void load_log(Load& load, const LoadedLog& log, PendingEvents pending) {
    FormWindows& windows = load.console.platform.form_windows;
    if (pending == PendingEvents::BeforeTest) windows.let_events_pass();
    const std::string path = path_if_there(load, log.log);
    if (!path.empty()) {
        if (pending == PendingEvents::BeforeOpening) windows.let_events_pass();
        load_lines(load, log, path);
    } else if (!log.missing_text.empty()) {
        load.console.Form1.st1.set_text(1, std::string(log.missing_text));
    }
    if (pending == PendingEvents::AfterLog) windows.let_events_pass();
}

void show_totals(const Load& load) {
    const auto& [total, ignored, highlighted] = load.counts;
    load.console.Form1.st1.set_text(
        3, "Total: " + std::to_string(static_cast<std::int64_t>(total)) + " events    Ignored:" +
               std::to_string(ignored) + "    Highlighted:" + std::to_string(highlighted));
}

}  // namespace tessarine
