// Events as a host reports them, with the texts of generated lines.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "platform/event_source.h"
#include "store/event_record.h"

namespace tessarine::bench {

/// A thousand events of one day: few enough to stay in the processor's cache.
class MadeUpEvents {
  public:
    explicit MadeUpEvents(const std::string& host);
    MadeUpEvents(const MadeUpEvents&) = delete;
    MadeUpEvents& operator=(const MadeUpEvents&) = delete;

    /// The views hold as long as the object.
    const std::vector<EventProperties>& all() const { return events_; }

  private:
    std::string_view keep(std::string text) { return texts_.emplace_back(std::move(text)); }
    EventProperties event_of(const EventRecord& record);

    std::deque<std::string> texts_;
    std::vector<EventProperties> events_;
};

}  // namespace tessarine::bench
