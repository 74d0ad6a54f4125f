// Which table a command is about: hidden labels of the main window say so, not the mouse.
#pragma once

#include <string_view>

#include "core/forms/main_form.h"
#include "core/text.h"

namespace tessarine {

/// The event table under the caption that lblselectedTab holds; nothing for any other caption.
inline ListControl* marked_event_table(MainForm& form) {
    const std::string_view caption = form.lblselectedTab.caption;
    if (same_text(caption, " System Log  ")) return &form.SystemList;
    if (same_text(caption, " Application Log")) return &form.ApplicationList;
    if (same_text(caption, " Security Log  ")) return &form.SecurityList;
    return nullptr;
}

/// The analysis table whose word lblselectedTab2 holds; nothing for any other word.
inline ListControl* marked_analysis_table(MainForm& form) {
    const std::string_view word = form.lblselectedTab2.caption;
    if (same_text(word, "list2")) return &form.ListView2;
    if (same_text(word, "list3")) return &form.ListView3;
    if (same_text(word, "list4")) return &form.ListView4;
    return nullptr;
}

/// The row that a command on `table` is about. Raises a RuntimeError when none is selected.
inline ListControl::Row selected_row(ListControl& table) {
    return table.row(table.selected_item());
}

}  // namespace tessarine
