// Which table a command is about: hidden labels of the main window say so, not the mouse.
#pragma once

#include "core/log_facts.h"
#include "core/text.h"

namespace tessarine {

/// The event table under the caption that lblselectedTab holds; nothing for any other caption.
inline const ListControl* marked_event_table(MainForm& form) {
    for (const EventLog log : kEventLogs)
        if (same_text(form.lblselectedTab.caption, tab_of(form, log).caption))
            return &table_of(form, log);
    return nullptr;
}

/// The analysis table whose word lblselectedTab2 holds; nothing for any other word.
inline const ListControl* marked_analysis_table(MainForm& form) {
    for (const LogFacts& facts : kLogFacts)
        if (same_text(form.lblselectedTab2.caption, facts.analysis_word))
            return &(form.*facts.analysis);
    return nullptr;
}

/// The row that a command on `table` is about. Raises a RuntimeError when there are no rows.
inline ListControl::ConstRow selected_row(const ListControl& table) {
    return table.row(table.selected_item());
}

}  // namespace tessarine
