#include "viewer/record_list_clicks.h"

#include "core/console_state.h"

namespace tessarine {
namespace {

void pop_up_for(Console& console, const ListControl& table) {
    if (table.count() > 0 && table.selected_item() > 0)
        console.platform.form_windows.pop_up_menu("popmeup2");
}

}  // namespace

void release_on_system_list(Console& console) {
    pop_up_for(console, console.Form1.SystemList);
}

void release_on_application_list(Console& console) {
    pop_up_for(console, console.Form1.ApplicationList);
}

void release_on_security_list(Console& console) {
    pop_up_for(console, console.Form1.SecurityList);
}

}  // namespace tessarine
