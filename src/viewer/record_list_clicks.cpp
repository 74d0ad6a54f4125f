#include "viewer/record_list_clicks.h"

#include <string>

#include "core/console_state.h"
#include "core/control_events.h"
#include "tables/marked_tables.h"

namespace tessarine {
namespace {

constexpr int kRightButton = 2;

bool has_selected_row(const ListControl& table) {
    return table.count() > 0 && table.selected_item() > 0;
}

void release_on_events(Console& console, const ListControl& table, int button) {
    if (button == kRightButton && has_selected_row(table))
        console.platform.form_windows.pop_up_menu("popmeup2");
}

// KEEP(tables-share-the-last-sorted-column): one number for two tables. One each looks right, but a
// first click on a table counts as its second after one on that column of the other.
void sort(Console& console, ListControl& table, int column) {
    int& last_column = console.Form1.last_sorted_column;
    const bool turns = column == last_column && table.sort_order() != SortOrder::Descending;
    last_column = column;
    table.sort_by(column - 1, turns ? SortOrder::Descending : SortOrder::Ascending);
}

void release_on_analysis(Console& console, ListControl& table, const char* word, int button) {
    MainForm& form = console.Form1;
    if (has_selected_row(table)) {
        const ListControl::Row row = selected_row(table);
        std::string text = "Event Code: ";
        text.append(row.text()).append(", Event Source: ").append(row.sub_item(2));
        form.lblEventDetail.caption = text;
    }
    if (button != kRightButton) return;
    form.lblselectedTab2.caption = word;
    if (has_selected_row(table)) console.platform.form_windows.pop_up_menu("popmeup3");
}

}  // namespace

void release_on_system_list(Console& console, const InputDetails& details) {
    release_on_events(console, console.Form1.SystemList, details.button);
}

void release_on_application_list(Console& console, const InputDetails& details) {
    release_on_events(console, console.Form1.ApplicationList, details.button);
}

void release_on_security_list(Console& console, const InputDetails& details) {
    release_on_events(console, console.Form1.SecurityList, details.button);
}

void click_column_of_system_list(Console& console, const InputDetails& details) {
    sort(console, console.Form1.SystemList, details.column);
}

void click_column_of_application_list(Console& console, const InputDetails& details) {
    sort(console, console.Form1.ApplicationList, details.column);
}

void release_on_system_analysis(Console& console, const InputDetails& details) {
    release_on_analysis(console, console.Form1.ListView2, "list2", details.button);
}

void release_on_application_analysis(Console& console, const InputDetails& details) {
    release_on_analysis(console, console.Form1.ListView3, "list3", details.button);
}

void release_on_security_analysis(Console& console, const InputDetails& details) {
    release_on_analysis(console, console.Form1.ListView4, "list4", details.button);
}

}  // namespace tessarine
