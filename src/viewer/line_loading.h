// How the lines of a host's event log file become rows of a table.
#pragma once

#include <string_view>

#include "core/counter16.h"
#include "tables/code_matches.h"
#include "tables/table_rows.h"
#include "viewer/load.h"

namespace tessarine {

/// Takes the lines of one log's file in their order.
class LineLoading {
  public:
    /// The code lists are taken as they are now.
    LineLoading(Load& load, const LoadedLog& log);

    void take_line(std::string_view line);

    /// Lines taken, in any way; it stays at 32,767.
    int record_counter() const { return record_counter_.value(); }

  private:
    bool is_ignored(const EventRecord& record);
    void show_line(const EventRecord& record);

    Load& load_;
    const LoadedLog& log_;
    MainForm& form_;
    const ListControl& table_;
    TableRows rows_;
    CodeMatches ignored_codes_;
    Counter16 record_counter_;
};

}  // namespace tessarine
