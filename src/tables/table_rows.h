// How records become rows of an event table, whoever fills it.
#pragma once

#include <span>

#include "core/error_regime.h"
#include "store/event_record.h"
#include "tables/code_matches.h"
#include "tables/shown_types.h"

namespace tessarine {

struct Console;

class TableRows {
  public:
    /// The alert list is taken as it is now. `errors` is the regime of the routine that fills the
    /// table.
    TableRows(Console& console, ListControl& table, std::span<const ShownType> types,
              const ErrorRegime& errors);

    /// The first of the types that the record names; null for none.
    const ShownType* type_of(const EventRecord& record) const;
    /// Adds the record as a row of that type. Without a type its fields go to the last row.
    void add(const EventRecord& record, const ShownType* type);
    /// Turns the last row red when the record's code stands in the alert list and the menu wants
    /// it; returns how often it stands there.
    int highlight(const EventRecord& record);

  private:
    void add_row(const EventRecord& record, int small_icon);
    void add_fields(const EventRecord& record);
    void colour_last_row();

    Console& console_;
    ListControl& table_;
    std::span<const ShownType> types_;
    CodeMatches alert_codes_;
    const ErrorRegime& errors_;
};

}  // namespace tessarine
