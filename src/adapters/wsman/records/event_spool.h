// The records of one query, kept in a temporary file: the host gives them only once, and a large
// log does not fit into memory.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "adapters/wsman/records/temporary_file.h"
#include "platform/event_source.h"

namespace tessarine {

class EventSpool {
  public:
    /// `folder` as TemporaryFile takes it. Keeps up to `most_bytes`, and no more than half of what
    /// `free_space`, by default what is free in the folder now.
    EventSpool(const std::string& folder, std::uint64_t most_bytes,
               std::optional<std::uint64_t> free_space = std::nullopt);

    /// Adds records, as append_event makes them, after the last. Raises a RuntimeError when they
    /// are too many or the disk is full.
    void append(std::string_view records);

    /// The next record from the reading position; false after the last one that was added so far.
    /// The views in `event` hold until the next call.
    bool next(EventProperties& event);

    /// Sets the reading position to the first record.
    void start_over();

  private:
    TemporaryFile file_;
    std::uint64_t most_bytes_;
    std::string buffer_;
    std::string_view unread_;   // The end of buffer_.
    std::uint64_t offset_ = 0;  // Where the file goes on after buffer_.
};

}  // namespace tessarine
