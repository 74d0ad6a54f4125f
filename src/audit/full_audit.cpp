#include "audit/full_audit.h"

#include <string>

#include "audit/audit_host.h"
#include "audit/audit_result.h"
#include "audit/connection_check.h"
#include "core/console_state.h"
#include "core/host_rows.h"
#include "core/text.h"

namespace tessarine {
namespace {

enum class Scope { SelectedHosts, AllHosts };

void audit_row(Console& console, int row) {
    MainForm& form = console.Form1;
    const std::string host = replace_text(form.ListView1.row(row).text(), "\\\\", "");
    test_host(console, host);
    if (console.end_wanted) return;
    if (same_text(form.lblReturn.caption, "hostok"))
        AuditHost(console, host, "full", {});
    else
        form.AuditStat.text = "error";
    mark_result(form.ListView1, row, same_text(form.AuditStat.text, "error"));
}

void walk_hosts(Console& console, Scope scope) {
    ListControl& list = console.Form1.ListView1;
    const int rows = host_rows(list);
    for (int row = 1; row <= rows && !console.end_wanted; ++row)
        if (scope == Scope::AllHosts || list.row(row).selected()) audit_row(console, row);
}

}  // namespace

void fullaudit(Console& console) {
    walk_hosts(console, Scope::SelectedHosts);
}

void runFullauditAllhost(Console& console) {
    walk_hosts(console, Scope::AllHosts);
}

}  // namespace tessarine
