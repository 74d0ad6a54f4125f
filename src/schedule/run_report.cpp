#include "schedule/run_report.h"

#include "core/console_state.h"
#include "platform/clock.h"
#include "store/log_files.h"

namespace tessarine {
namespace {

struct AlertForm {
    EventLog log;
    const char* begin;
    const char* before_host = "  >>Host: ";
};

constexpr AlertForm kAlertForms[] = {
    {.log = EventLog::System, .begin = "Sys Event "},
    {.log = EventLog::Application, .begin = "App Event "},
    {.log = EventLog::Security, .begin = "Sec Event ", .before_host = "   >>Host: "},
};

}  // namespace

void RunReport::open(Console& console) {
    Files& files = console.platform.files;
    path_ =
        run_report_path(files, console.Form3->txtLogPath.text, console.platform.clock.now().date);
    file_ = files.open(path_, OpenFor::Writing);
}

void RunReport::begin_host() {
    file_->flush();
    add_line("#############");
    add_line(" ");
}

void RunReport::add_host_down(const std::string& host) {
    add_line(host + "  - Error: Host Down or Remote Port Blocked");
}

void RunReport::add_audit_error(const std::string& host, const std::string& description) {
    add_line(host + "  - Error: Audit Error - " + description);
}

void RunReport::add_success(const std::string& host) {
    add_line(host + "  - Ok: Audit Success");
}

void RunReport::add_alert(EventLog log, const EventRecord& record) {
    has_alerts_ = true;
    for (const AlertForm& form : kAlertForms) {
        if (form.log != log) continue;
        std::string line = form.begin;
        line.append(record.field(Field::Date)).append(" ").append(record.field(Field::Time));
        line.append("  >>Event:").append(record.field(Field::Event));
        line.append(form.before_host).append(record.field(Field::Computer));
        add_line(line);
    }
}

void RunReport::add_line(const std::string& line) {
    file_->write(line + "\r\n");
}

void RunReport::close() {
    file_->close();
}

}  // namespace tessarine
