#include "viewer/record_list_clicks.h"

#include <string>

#include "core/console_state.h"
#include "core/control_events.h"
#include "tables/marked_tables.h"
#include "tables/row_fields.h"

namespace tessarine {
void release_on_events(Console& console, EventLog log, const InputDetails& details) {
    if (details.button == MouseButton::Right && table_of(console.Form1, log).count() > 0)
        console.platform.form_windows.pop_up_menu("popmeup2");
}

// KEEP(tables-share-the-last-sorted-column): with a number for each table a first click on a column
// would never count as its second.
void click_column(Console& console, EventLog log, const InputDetails& details) {
    ListControl& table = table_of(console.Form1, log);
    int& last_column = console.Form1.last_sorted_column;
    const bool turns = details.column == last_column && table.sort_order() != SortOrder::Descending;
    last_column = details.column;
    table.sort_by(details.column - 1, turns ? SortOrder::Descending : SortOrder::Ascending);
}

void release_on_analysis(Console& console, EventLog log, const InputDetails& details) {
    MainForm& form = console.Form1;
    const ListControl& table = analysis_of(form, log);
    if (table.count() == 0) return;
    const ListControl::ConstRow row = selected_row(table);
    std::string text = "Event Code: ";
    text.append(row.text()).append(", Event Source: ").append(row.sub_item(kSource));
    form.lblEventDetail.caption = text;
    if (details.button != MouseButton::Right) return;
    form.lblselectedTab2.caption = facts_of(log).analysis_word;
    console.platform.form_windows.pop_up_menu("popmeup3");
}

}  // namespace tessarine
