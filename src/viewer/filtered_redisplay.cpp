#include "viewer/filtered_redisplay.h"

#include <array>
#include <cstdint>
#include <string_view>

#include "core/console_state.h"
#include "core/text.h"
#include "platform/form_windows.h"
#include "tables/log_tables.h"
#include "viewer/log_loading.h"

namespace tessarine {
namespace {

// KEEP(redisplay-loses-application-audit-failures): they are no type of the application log here,
// so their fields go to the last row of the table. The types of the full load look right, but any
// click on one of the three boxes makes such rows vanish.
constexpr LogTable kRedisplayedApplicationTable = [] {
    LogTable table = kApplicationTable;
    table.types = table.types.first(3);
    return table;
}();

struct Redisplay {
    std::string_view word;
    const LogTable& table;
    PendingEvents pending;
};

constexpr std::array kRedisplays = {
    Redisplay{"security", kSecurityTable, PendingEvents::No},
    Redisplay{"system", kSystemTable, PendingEvents::BeforeTest},
    Redisplay{"application", kRedisplayedApplicationTable, PendingEvents::BeforeOpening},
};

void redisplay(Console& console, const std::string& log) {
    ListControl& hosts = console.Form1.ListView1;
    const int row = hosts.selected_item();
    if (row > 0) ShowRecords(console, std::string(hosts.row(row).text()), log);
}

}  // namespace

void click_system_box(Console& console) {
    redisplay(console, "system");
}

void click_application_box(Console& console) {
    redisplay(console, "application");
}

void click_security_box(Console& console) {
    redisplay(console, "security");
}

void ShowRecords(Console& console, const std::string& HostName, const std::string& SelLog) {
    MainForm& form = console.Form1;
    form.st1.set_text(1, "Please wait ...");
    console.platform.form_windows.let_events_pass();
    form.mouse_pointer = kPointerHourglass;
    LoadCounts counts;
    TabAlerts alerts{};
    for (const auto& [word, table, pending] : kRedisplays) {
        if (!same_text(SelLog, word)) continue;
        // KEEP(redisplay-fills-a-sorted-table): sorting stays on, so that rows take their sorted
        // places while fields and colours go to the last row. Clearing it looks right; only the
        // full load does.
        (form.*table.table).clear();
        alerts[static_cast<std::size_t>(table.tab)] =
            load_log(console, table, HostName, pending, counts);
    }
    // KEEP(redisplay-resets-foreign-tab-marks): the marks of two tabs follow the one log that was
    // read, and the application's keeps what the full load gave it. Marking the tab of the log that
    // was read, and no other, looks right.
    mark_tabs(form.TabStrip2, alerts, {1, 3});
    console.platform.form_windows.let_events_pass();
    form.mouse_pointer = kPointerDefault;
    form.st1.set_text(1, "");
    form.st1.set_text(3,
                      std::to_string(static_cast<std::int64_t>(counts.total)) + " records parsed");
    show_totals(console, counts);
}

}  // namespace tessarine
