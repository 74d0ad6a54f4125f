#include "viewer/host_loading.h"

#include <array>

#include "core/console_state.h"
#include "core/error_regime.h"
#include "core/host_rows.h"
#include "core/marked_host.h"
#include "platform/form_windows.h"
#include "viewer/log_loading.h"

namespace tessarine {
namespace {

struct LoadStep {
    const LoadedLog& log;
    PendingEvents pending;
};

// The logs in the order in which they are read.
constexpr std::array kSteps = {
    LoadStep{kSecurityLog, PendingEvents::AfterLog},
    LoadStep{kSystemLog, PendingEvents::No},
    LoadStep{kApplicationLog, PendingEvents::BeforeOpening},
};
static_assert(kSteps[0].log.log == EventLog::Security && kSteps[2].log.log == EventLog::Application,
              "the logs are read in an order of their own, not in that of the tabs");

}  // namespace

void vieweventlogs(Console& console) {
    MainForm& form = console.Form1;
    const int row = marked_host(console);
    if (row == 0) return;
    form.SystemList.set_sorted(false);
    form.ApplicationList.set_sorted(false);
    const std::string host(form.ListView1.row(row).text());
    ViewEventLog(console, host);
    form.txtSelectedHost.text = "Host: " + host;
}

void ViewEventLog(Console& console, const std::string& HostName) {
    MainForm& form = console.Form1;
    form.List1Index.text = std::to_string(form.ListView1.selected_item());
    ErrorRegime errors;
    errors.ignore_from_here();
    for (const EventLog log : kEventLogs) table_of(form, log).clear();
    form.st1.set_text(1, "Please wait ...");
    int selected = 1;
    // KEEP(long-host-lists-load-one-host): with a wider number several selected hosts would be
    // refused in a long list too.
    errors.run([&] { selected = selected_hosts(form.ListView1); });
    if (selected > 1) {
        form.st1.set_text(1, "");
        return;
    }
    console.platform.form_windows.let_events_pass();
    console.mouse_pointer = kPointerHourglass;
    Load load(console, HostName, errors);
    for (const auto& [log, pending] : kSteps) load_log(load, log, pending);
    mark_tabs(form, load.alerts, {EventLog::System, EventLog::Security, EventLog::Application});
    console.platform.form_windows.let_events_pass();
    console.mouse_pointer = kPointerDefault;
    // The empty text also wipes what was said of a missing security log.
    form.st1.set_text(1, "");
    show_totals(load);
}

}  // namespace tessarine
