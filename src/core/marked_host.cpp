#include "core/marked_host.h"

#include "core/console_state.h"

namespace tessarine {

int marked_host(Console& console) {
    ListControl& hosts = console.Form1.ListView1;
    // The selected item can be a row whose mark has been taken away, which nobody sees.
    const int selected = hosts.selected_item();
    if (selected > 0 && hosts.row(selected).selected()) return selected;
    for (int row = 1; row <= hosts.count(); ++row) {
        if (!hosts.row(row).selected()) continue;
        hosts.set_selected_item(row);
        return row;
    }
    console.Form1.st1.set_text(1, "No host selected");
    return 0;
}

}  // namespace tessarine
