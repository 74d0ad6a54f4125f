#include "audit/event_files.h"

#include <chrono>
#include <exception>
#include <string_view>

#include "audit/log_archive.h"
#include "core/console_state.h"
#include "core/log_facts.h"
#include "core/runtime_error.h"

namespace tessarine {

EventFiles::EventFiles(const RegionalText& regional, const LogSelection& selection)
    : logs_{{{EventLog::System, selection.SelSystem, nullptr},
             {EventLog::Application, selection.SelApplication, nullptr},
             {EventLog::Security, selection.SelSecurity, nullptr}}},
      writer_(regional) {}

// KEEP(every-log-file-is-opened): opening the selected logs alone would leave the other two filled
// under the option to overwrite.
void EventFiles::open(Console& console, const std::string& host) {
    auto& settings = console.Form3;
    Files& files = console.platform.files;
    const auto path_of = [&](EventLog log) {
        return host_log_path(files, settings->txtLogPath.text, host, log);
    };
    // One of the three stands for all. It may have been deleted since the audit began.
    const std::string system_log = path_of(EventLog::System);
    if (const auto made = files.create(system_log)) made->close();
    lock_ = files.lock(system_log, std::chrono::milliseconds(0));
    if (lock_ == nullptr)
        throw RuntimeError(ErrorNumber::PermissionDenied,
                           "Another audit is writing the logs of " + host);
    if (settings->optMove.value) archive_event_logs(console, host);
    const OpenFor purpose = settings->optAppend.value ? OpenFor::Appending : OpenFor::Writing;
    for (LogFile& log : logs_) log.file = files.open(path_of(log.log), purpose);
}

void EventFiles::write(const EventProperties& event) {
    const std::string_view name = event.LogFile.value_or(std::string_view());
    for (LogFile& log : logs_)
        if (log.selected && name == facts_of(log.log).name) log.file->write(writer_.line_of(event));
}

void EventFiles::close() {
    std::exception_ptr failure;
    for (LogFile& log : logs_) {
        if (log.file == nullptr) continue;
        try {
            log.file->sync();
            log.file->close();
        } catch (const RuntimeError&) {
            failure = std::current_exception();
        }
        log.file.reset();
    }
    lock_.reset();
    if (failure) std::rethrow_exception(failure);
}

}  // namespace tessarine
