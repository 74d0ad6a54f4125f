#include "hosts/host_list.h"

#include <string>

#include "core/console_state.h"
#include "core/host_rows.h"
#include "core/icons.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "store/log_files.h"

namespace tessarine {
namespace {

std::string log_path_of(Console& console, const std::string& host, EventLog log) {
    return host_log_path(console.platform.files, console.Form3->txtLogPath.text, host, log);
}

// KEEP(delete-logs-takes-names-as-they-stand): finding the files of a name with a leading "\\", as
// viewing and auditing do, would delete them.
bool has_log(Console& console, const std::string& host, EventLog log) {
    if (host.starts_with("\\\\") || !can_name_files(host)) return false;
    return console.platform.files.file_exists(log_path_of(console, host, log));
}

void delete_logs_of(Console& console, const std::string& host) {
    for (const EventLog log : kEventLogs) {
        // KEEP(delete-logs-reports-the-last-file): a sum of all files would replace the text of the
        // last one.
        if (has_log(console, host, log)) {
            console.platform.files.remove(log_path_of(console, host, log));
            console.Form1.st1.set_text(1, "Deleted logs of Host " + host);
        } else {
            console.Form1.st1.set_text(1, "Log not found..");
        }
    }
}

}  // namespace

void add_host_row(ListControl& list, std::string_view name) {
    list.add_row(name, kIconHost).add_sub_item("-");
}

void show_host_count(Console& console) {
    console.Form1.st1.set_text(4, std::to_string(console.Form1.ListView1.count()) + " hosts");
}

void press_on_host_list(Console& console, const InputDetails& details) {
    MainForm& form = console.Form1;
    if (form.ListView1.count() == 0) {
        form.st1.set_text(1, "List Empty. Enumerate or Load hosts");
        return;
    }
    form.st1.set_text(1, "");
    const int selected = selected_hosts(form.ListView1);
    if (details.button != MouseButton::Right) return;
    form.graphicalview.enabled = selected <= 1;
    console.platform.form_windows.pop_up_menu("MyMenu");
}

void removehost(Console& console) {
    ListControl& list = console.Form1.ListView1;
    for (int row = host_rows(list); row >= 1; --row)
        if (list.row(row).selected()) list.remove_row(row);
}

void dellogs(Console& console) {
    if (console.platform.dialogs.message_box(
            "Are you sure want to delete the logs of the selected hosts?",  // sic
            MessageStyle::YesNoQuestion) != MessageAnswer::Yes)
        return;
    const ListControl& list = console.Form1.ListView1;
    const int rows = host_rows(list);
    for (int row = 1; row <= rows; ++row) {
        console.mouse_pointer = kPointerHourglass;
        if (list.row(row).selected()) delete_logs_of(console, std::string(list.row(row).text()));
    }
    console.mouse_pointer = kPointerDefault;
}

void enter_selected_host(Console& console) {
    console.Form1.want_focus("ListView1");
}

void press_on_selected_host(Console& console, const InputDetails& details) {
    if (details.button == MouseButton::Right) console.Form1.want_focus("TxtAlert");
}

}  // namespace tessarine
