#include "schedule/scheduled_audit.h"

#include <charconv>
#include <cmath>
#include <memory>
#include <string>

#include "audit/audit_host.h"
#include "audit/connection_check.h"
#include "core/console_state.h"
#include "core/counter16.h"
#include "core/text.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "schedule/mail.h"
#include "schedule/run_report.h"
#include "store/log_files.h"
#include "store/record_reader.h"
#include "tables/code_matches.h"

namespace tessarine {
namespace {

std::string clock_text(const TimeOfDay& time) {
    return padded(time.hour, 2) + ":" + padded(time.minute, 2);
}

// The number that a text begins with, blanks left out; 0 where it begins with none.
double number_at_head(std::string text) {
    std::erase_if(text, [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; });
    const bool signed_plus = text.starts_with('+');
    const char* begin = text.data() + (signed_plus ? 1 : 0);
    const std::size_t digit = text.starts_with('-') || signed_plus ? 1 : 0;
    const bool is_number =
        digit < text.size() && (text[digit] == '.' || (text[digit] >= '0' && text[digit] <= '9'));
    double number = 0;
    if (is_number) std::from_chars(begin, text.data() + text.size(), number);
    return number;
}

// A half goes to the even neighbour.
int rounded16(double number) {
    const double whole = std::nearbyint(number);
    if (whole < -kMost16 - 1 || whole > kMost16)
        throw RuntimeError(ErrorNumber::Overflow, "Overflow");
    return static_cast<int>(whole);
}

// The day from which on events are read.
// KEEP(days-back-stay-in-the-month): reading on into the month before would report events that no
// report had before.
std::string scope_of(Console& console, const Date& today) {
    const int days_back = rounded16(number_at_head(console.Form3->txtretlog.text));
    int day = count16(today.day - days_back);
    if (day < 0) day = today.day;
    return padded(today.month, 2) + "/" + std::to_string(day) + "/" + padded(today.year, 4);
}

// One line for each entry of the alert list that an event's code equals.
void report_alerts(Console& console, const std::string& host, EventLog log,
                   const CodeMatches& alerts, RunReport& report) {
    Files& files = console.platform.files;
    const auto file = files.open(host_log_path(files, console.Form3->txtLogPath.text, host, log),
                                 OpenFor::Reading);
    RecordReader reader(*file);
    for (std::string_view line; reader.next(line);) {
        const EventRecord record(line);
        // KEEP(broken-record-ends-the-daily-audit): passing over it would report events of runs
        // that report none.
        const int equal = alerts.entries() == 0 ? 0 : alerts.count(record.field(Field::Event));
        for (int i = 0; i < equal; ++i) report.add_alert(log, record);
    }
    file->close();
}

void audit_and_report(Console& console, const std::string& host, const std::string& scope,
                      RunReport& report) {
    MainForm& form = console.Form1;
    report.begin_host();
    test_host(console, host);
    if (console.end_wanted) return;
    if (form.lblReturn.caption != "hostok") {
        form.AuditStat.text = "error";
        report.add_host_down(host);
        return;
    }
    AuditHost(console, host, scope, {});
    if (form.AuditStat.text == "error") {
        report.add_audit_error(host, form.st1.text(1));
        return;
    }
    report.add_success(host);
    const CodeMatches alerts(form.AlertList);
    for (const EventLog log : kEventLogs) report_alerts(console, host, log, alerts, report);
}

}  // namespace

void tick_schedule(Console& console) {
    const std::string at = console.Form3->txtHour.text + ":" + console.Form3->txtMin.text;
    const std::string now = clock_text(console.platform.clock.now().time);
    // What tells of the program's coming end stays.
    if (!console.end_wanted) console.Form1.st1.set_text(5, now + " -  AutoAudit @: " + at);
    if (now == at) AutoAudit(console);
}

void AutoAudit(Console& console) {
    MainForm& form = console.Form1;
    const Date today = console.platform.clock.now().date;
    const std::string stamp =
        padded(today.month, 2) + "/" + padded(today.day, 2) + "/" + padded(today.year, 4);
    if (form.LastAutoAuditDate == stamp || console.end_wanted) return;
    if (form.AutoAuditRunning) {
        form.st1.set_text(1, "Auto Audit Already In Progress");
        return;
    }
    form.AutoAuditRunning = true;
    form.LastAutoAuditDate = stamp;
    form.st1.set_text(5, "Auto Audit In Progress..");
    if (!console.platform.files.file_exists(console.Form3->txtHosts.text)) {
        // KEEP(missing-host-file-blocks-later-runs): taking the flag back would let the next day's
        // run take place.
        form.st1.set_text(1, "Empty Hosts File or No Host File Selected");
        return;
    }
    const std::string scope = scope_of(console, today);
    RunReport report;
    report.open(console);
    const auto hosts = console.platform.files.open(console.Form3->txtHosts.text, OpenFor::Reading);
    RecordReader reader(*hosts);
    for (std::string_view line; !console.end_wanted && reader.next(line);)
        audit_and_report(console, upper_text(line), scope, report);
    hosts->close();
    report.close();
    // KEEP(mail-after-every-run): a mail for matches alone would tell those who wait for it nothing
    // of a run that didn't take place.
    if (!console.end_wanted && console.Form3->Check6.value == 1)
        SendMailToEndUser(
            console, report.path(),
            report.has_alerts() ? "Tessarine-Pattern Match Alert" : "Tessarine-No Alerts");
    form.AutoAuditRunning = false;
    if (console.end_wanted) return;
    form.st1.set_text(5, "");
    form.st1.set_text(
        1, "Auto Audit Finished At " + console.regional.date_time(console.platform.clock.now()));
}

}  // namespace tessarine
