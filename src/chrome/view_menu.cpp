#include "chrome/view_menu.h"

#include <string>

#include "core/console_state.h"
#include "core/settings_store.h"

namespace tessarine {
namespace {

void toggle(Console& console, MenuEntry& entry, const std::string& setting) {
    entry.checked = !entry.checked;
    WriteValue(console, setting, ValueType::Text, entry.checked ? "true" : "false");
}

}  // namespace

void highlightpatt(Console& console) {
    toggle(console, console.Form1.highlightpatt, "highpat");
}

void hideignore(Console& console) {
    toggle(console, console.Form1.hideignore, "hideignore");
}

void shogrid(Console& console) {
    MainForm& form = console.Form1;
    for (ListControl* list :
         {&form.SystemList, &form.ApplicationList, &form.SecurityList, &form.ListView1})
        list->grid_lines = !form.shogrid.checked;
    toggle(console, form.shogrid, "showgrid");
}

}  // namespace tessarine
