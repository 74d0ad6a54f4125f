#include "audit/audit_host.h"

#include <cstdint>
#include <memory>
#include <optional>

#include "audit/event_files.h"
#include "audit/event_query.h"
#include "core/console_state.h"
#include "core/error_regime.h"
#include "platform/event_source.h"
#include "platform/files.h"
#include "store/audit_log.h"
#include "store/log_files.h"

namespace tessarine {
namespace {

void make_folders(Console& console) {
    Files& files = console.platform.files;
    const std::string& log_path = console.Form3->txtLogPath.text;
    for (const std::string& folder : {logs_folder(files, log_path), data_folder(files, log_path),
                                      archive_parent_folder(files, log_path)})
        if (!files.folder_exists(folder)) files.create_folder(folder);
}

// A host that never answers still gets its three files.
void make_empty_files(Console& console, const std::string& host) {
    Files& files = console.platform.files;
    for (const EventLog log : kEventLogs) {
        const std::string path = host_log_path(files, console.Form3->txtLogPath.text, host, log);
        if (const auto made = files.create(path)) made->close();
    }
}

std::unique_ptr<EventService> connect(Console& console, const std::string& host) {
    auto& settings = console.Form3;
    std::optional<Credentials> credentials;
    if (settings->Check1.value == 1)
        credentials = Credentials{settings->TxtUsername.text, settings->TxtPassword.text.text()};
    auto service = console.platform.event_source.connect_server(host, "root\\cimv2", credentials);
    service->set_authentication_level(kAuthenticationPacketPrivacy);
    service->set_impersonation_level(kImpersonationImpersonate);
    return service;
}

// The first walk, for the sake of a progress bar with a true maximum.
std::int64_t count_records(Console& console, EventResult& result) {
    EventProperties event;
    std::int64_t counter = 0;
    while (result.next(event)) console.Form1.st1.set_count(3, {" Reading log file : ", ++counter});
    return counter;
}

void write_records(Console& console, EventResult& result, EventFiles& files) {
    MainForm& form = console.Form1;
    EventProperties event;
    std::int64_t counter = 0;
    result.start_over();
    while (result.next(event)) {
        form.pbar1.set_value(counter++);
        form.st1.set_count(
            3, {" processing record : ", form.pbar1.value() + 1, "/", form.pbar1.maximum()});
        files.write(event);
    }
}

// Everything between the audit log's opening and the outcome; false when the host had no record.
bool pull_events(Console& console, const std::string& host, const std::string& kind,
                 EventFiles& files) {
    MainForm& form = console.Form1;
    make_empty_files(console, host);
    // KEEP(audit-empties-the-system-table): the System table would keep what it shows.
    form.SystemList.clear();
    console.mouse_pointer = kPointerHourglass;
    form.st1.set_text(1, "Attempting connection to host: " + host);
    const auto service = connect(console, host);
    form.st1.set_text(1, "Processing Host: " + host);
    const auto result = service->exec_query(event_query(console, kind));
    const std::int64_t count = count_records(console, *result);
    if (count == 0) return false;
    form.pbar1.set_maximum(count);
    form.pbar1.set_visible(true);
    files.open(console, host);
    write_records(console, *result, files);
    files.close();
    form.st1.set_text(1, "");
    form.st1.set_text(3, "");
    form.pbar1.set_value(0);
    form.mouse_pointer = kPointerDefault;
    return true;
}

// Closing and logging belong to the report of a failure and must not replace it by one of their
// own.
void report_failure(Console& console, const std::string& host, const std::string& description,
                    EventFiles& files, AuditLog& log) {
    ignoring_errors([&](const ErrorRegime& errors) {
        errors.run([&] { files.close(); });
        console.Form1.st1.set_text(1, description + " - Audit error");
        console.Form1.AuditStat.text = "error";
        errors.run([&] { log.append(console, host + " Audit Error --" + description); });
        log.close();
    });
}

}  // namespace

void AuditHost(Console& console, const std::string& HostName, const std::string& Kind,
               const LogSelection& selection) {
    MainForm& form = console.Form1;
    EventFiles files(console.regional, selection);
    AuditLog log;
    try {
        make_folders(console);
        log.open(console);
        const bool any_record = pull_events(console, HostName, Kind, files);
        form.AuditStat.text = "ok";
        form.st1.set_text(1, any_record ? "" : "Zero records");
        log.append(console, HostName + (any_record ? " Audit ok"
                                                   : " Audit ok - Zero Records Returned From The "
                                                     "Client"));
        log.close();
    } catch (const RuntimeError& error) {
        report_failure(console, HostName, error.description(), files, log);
    }
    form.st1.set_text(3, "");
    form.pbar1.set_visible(false);
    console.mouse_pointer = kPointerDefault;
}

}  // namespace tessarine
