// One line of an event log file: eight fields joined by "|".
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/list/list_control.h"
#include "platform/date_time.h"
#include "platform/event_source.h"

namespace tessarine {

class RegionalText;

/// Indices of a record's fields.
enum class Field : int { Type, Date, Time, Source, Event, User, Computer, Message };

/// A line split at every "|". Fields after the eighth are never used; the last used one ends at
/// the next "|" all the same.
class EventRecord {
  public:
    /// `line` must outlive the record.
    explicit EventRecord(std::string_view line);

    /// How many of the eight fields are there, and whether all are.
    int field_count() const { return count_; }
    bool complete() const { return count_ == RecordText::kFields; }

    /// The field of that index; raises "Subscript out of range" when the line has none.
    std::string_view field(int index) const;
    std::string_view field(Field name) const { return field(static_cast<int>(name)); }

    /// The record as a row takes it; all eight fields must be there.
    const RecordText& text() const { return text_; }

  private:
    RecordText text_;
    int count_ = 0;
};

/// Makes the lines of an event log file from a host's events.
class RecordWriter {
  public:
    explicit RecordWriter(const RegionalText& regional) : regional_(regional) {}

    /// The line of one event, CR LF included; the view holds until the next call. Raises "Type
    /// mismatch" when `TimeGenerated` holds no date and time.
    std::string_view line_of(const EventProperties& event);

  private:
    const RegionalText& regional_;
    std::vector<char> line_;  // with room for the longest line so far
    std::string time_text_;
    std::string date_key_;  // the eight digits that `date_text_` was made from
    std::string date_text_;
};

}  // namespace tessarine
