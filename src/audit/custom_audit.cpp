#include "audit/custom_audit.h"

#include <string>

#include "audit/audit_host.h"
#include "audit/audit_result.h"
#include "audit/connection_check.h"
#include "core/console_state.h"
#include "core/host_rows.h"
#include "core/marked_host.h"
#include "core/regional_text.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/form_windows.h"

namespace tessarine {
namespace {

// What a custom audit does for each of its hosts; the dialog may go away under it.
struct CustomAudit {
    std::string kind;
    LogSelection logs;
};

void show_choice(Console& console) {
    auto& form = console.Form4;
    const std::string day = text_of_date(form->MonthView1.value);
    form->Label1.caption = form->chkSpecificDate.value != 0
                               ? "Perform audit for: " + day
                               : "Perform audit from: " + day + " onwards";
}

// KEEP(custom-audit-takes-names-as-they-stand): removing a leading "\\", as a full audit does,
// would change the connection and the names of the files.
// KEEP(custom-audit-of-a-down-host-leaves-no-trace): marking a host that is down, as a full audit
// does, would take away the icon that it had.
void audit_row(Console& console, const CustomAudit& audit, int row) {
    MainForm& form = console.Form1;
    const std::string host(form.ListView1.row(row).text());
    test_host(console, host);
    if (console.end_wanted || form.lblReturn.caption != "hostok") return;
    AuditHost(console, host, audit.kind, audit.logs);
    mark_result(form.ListView1, row, form.AuditStat.text == "error");
}

void show_position(Console& console, int row_number) {
    console.Form1.st1.set_text(
        4, std::to_string(row_number) + "/" + std::to_string(console.Form1.ListView1.count()));
}

void leave_dialog(Console& console) {
    console.platform.form_windows.let_events_pass();
    console.Form4->visible = false;
}

void walk_rows(Console& console, const CustomAudit& audit, bool selected_only) {
    ListControl& list = console.Form1.ListView1;
    const int rows = host_rows(list);
    for (int row = 1; row <= rows && !console.end_wanted; ++row) {
        if (selected_only && !list.row(row).selected()) continue;
        leave_dialog(console);
        list.row(row).set_selected(true);
        list.scroll_to(row);
        show_position(console, row);
        audit_row(console, audit, row);
    }
}

// The mode of a single host has no row number.
void audit_single_host(Console& console, const CustomAudit& audit) {
    const int row = marked_host(console);
    if (row == 0) return;
    leave_dialog(console);
    show_position(console, 0);
    audit_row(console, audit, row);
}

}  // namespace

void custaudit(Console& console) {
    const ListControl& list = console.Form1.ListView1;
    const int selected = selected_hosts(list);
    const int row = marked_host(console);
    if (row == 0) return;
    console.Form4->lblHostName.caption =
        selected > 1 ? "selected" : std::string(list.row(row).text());
    console.platform.form_windows.show_modal(console.Form4.kId);
}

void runcustomforallhosts(Console& console) {
    console.Form4->lblHostName.caption = "all";
    console.platform.form_windows.show_modal(console.Form4.kId);
}

void activate_custom_audit(Console& console) {
    auto& form = console.Form4;
    form->want_focus("Command1");
    form->MonthView1.value = console.platform.clock.now().date;
    form->chkSpecificDate.value = 0;
    show_choice(console);
}

void choose_audit_date(Console& console) {
    console.Form4->want_focus("Command1");
    show_choice(console);
}

void click_specific_date(Console& console) {
    show_choice(console);
}

void run_custom_audit(Console& console) {
    auto& form = console.Form4;
    const LogSelection logs{form->ChkSys.value != 0, form->ChkApp.value != 0,
                            form->ChkSec.value != 0};
    if (!logs.SelSystem && !logs.SelApplication && !logs.SelSecurity) {
        console.platform.dialogs.message_box("select atleast one log to audit",  // sic
                                             MessageStyle::Information);
        return;
    }
    const CustomAudit audit{text_of_date(form->MonthView1.value), logs};
    const std::string mode = form->lblHostName.caption;
    // KEEP(selected-hosts-leave-the-dialog-loaded): unloading Form4 here would take away its tick,
    // which a later audit of the schedule sees.
    if (mode == "selected") {
        walk_rows(console, audit, true);
        return;
    }
    if (mode == "all")
        walk_rows(console, audit, false);
    else
        audit_single_host(console, audit);
    console.Form4.unload();
}

}  // namespace tessarine
