#include "hosts/add_host_dialog.h"

#include "core/console_state.h"
#include "core/text.h"
#include "hosts/host_list.h"
#include "platform/form_windows.h"

namespace tessarine {

void show_add_host(Console& console) {
    console.Form6.get();
    console.platform.form_windows.show_modal(console.Form6.kId);
}

void add_typed_host(Console& console) {
    if (!console.Form6->AddHost.text.empty()) add_typed_host_on_enter(console);
}

// KEEP(enter-adds-an-empty-host): the button's test would leave out the empty row.
void add_typed_host_on_enter(Console& console) {
    TextBox& field = console.Form6->AddHost;
    add_host_row(console.Form1.ListView1, upper_text(field.text));
    field.text.clear();
}

}  // namespace tessarine
