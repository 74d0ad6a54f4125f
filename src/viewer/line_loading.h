// How the lines of a host's event log file become rows of a table.
#pragma once

#include <cstdint>
#include <string_view>

#include "core/counter16.h"
#include "core/error_regime.h"
#include "store/event_record.h"
#include "tables/code_matches.h"
#include "tables/log_tables.h"
#include "tables/table_rows.h"

namespace tessarine {

struct Console;

/// Numbers of one load, over all the logs that it reads.
struct LoadCounts {
    double total = 0;
    std::int32_t ignored = 0;
    std::int32_t highlighted = 0;
};

/// Takes the lines of one log's file in their order. Runtime errors are ignored all along.
class LineLoading {
  public:
    /// The code lists are taken as they are now.
    LineLoading(Console& console, const LogTable& log_table, LoadCounts& counts);

    void take_line(std::string_view line);

    /// Lines taken, in any way; it stays at 32,767.
    int record_counter() const { return record_counter_.value(); }
    /// Whether a shown record matched the alert list.
    bool alert() const { return alert_; }

  private:
    bool is_ignored(const EventRecord& record);
    void show_line(const EventRecord& record);

    Console& console_;
    const LogTable& log_;
    LoadCounts& counts_;
    TableRows rows_;
    CodeMatches ignored_codes_;
    ErrorRegime errors_;
    Counter16 record_counter_;
    bool alert_ = false;
};

}  // namespace tessarine
