#include "viewer/filtered_redisplay.h"

#include <array>
#include <cstdint>

#include "core/console_state.h"
#include "core/marked_host.h"
#include "core/text.h"
#include "platform/form_windows.h"
#include "viewer/log_loading.h"

namespace tessarine {
namespace {

// KEEP(redisplay-loses-application-audit-failures): with the types of the full load such rows would
// outlast a click on a box.
constexpr LoadedLog kRedisplayedApplicationLog{.log = EventLog::Application,
                                               .ending = kApplicationLog.ending,
                                               .types = kPlainApplicationTypes};

struct Redisplay {
    const LoadedLog& log;
    PendingEvents pending;
};

constexpr std::array kRedisplays = {
    Redisplay{kSecurityLog, PendingEvents::No},
    Redisplay{kSystemLog, PendingEvents::BeforeTest},
    Redisplay{kRedisplayedApplicationLog, PendingEvents::BeforeOpening},
};

}  // namespace

void click_type_box(Console& console, EventLog log) {
    const ListControl& hosts = console.Form1.ListView1;
    if (hosts.count() == 0) return;
    if (const int row = marked_host(console))
        ShowRecords(console, std::string(hosts.row(row).text()), std::string(facts_of(log).word));
}

void ShowRecords(Console& console, const std::string& HostName, const std::string& SelLog) {
    MainForm& form = console.Form1;
    form.st1.set_text(1, "Please wait ...");
    ErrorRegime errors;
    errors.ignore_from_here();
    console.platform.form_windows.let_events_pass();
    // KEEP(redisplay-turns-the-forms-pointer): the pointer of the screen, which a full load turns,
    // would change over other windows too.
    form.mouse_pointer = kPointerHourglass;
    Load load(console, HostName, errors);
    for (const auto& [log, pending] : kRedisplays) {
        if (!same_text(SelLog, facts_of(log.log).word)) continue;
        // KEEP(redisplay-fills-a-sorted-table): taking the sorting off, as a full load does, would
        // put each record's fields on its own row.
        table_of(form, log.log).clear();
        load_log(load, log, pending);
    }
    // KEEP(redisplay-resets-foreign-tab-marks): marking the tab of the log that was read, and no
    // other, would leave the marks of the other two.
    mark_tabs(form, load.alerts, {EventLog::System, EventLog::Security});
    console.platform.form_windows.let_events_pass();
    form.mouse_pointer = kPointerDefault;
    form.st1.set_text(1, "");
    form.st1.set_text(
        3, std::to_string(static_cast<std::int64_t>(load.counts.total)) + " records parsed");
    show_totals(load);
}

}  // namespace tessarine
