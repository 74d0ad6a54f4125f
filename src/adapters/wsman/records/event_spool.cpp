#include "adapters/wsman/records/event_spool.h"

#include <algorithm>

#include "adapters/wsman/basics/failure.h"
#include "adapters/wsman/records/spooled_events.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

constexpr std::size_t kReadSize = std::size_t{256} * 1024;

}  // namespace

EventSpool::EventSpool(const std::string& folder, std::uint64_t most_bytes,
                       std::optional<std::uint64_t> free_space)
    : file_(folder),
      most_bytes_(std::min(most_bytes, free_space.value_or(file_.free_space()) / 2)) {}

void EventSpool::append(std::string_view records) {
    if (records.size() > most_bytes_ - file_.size())
        raise_failure("The host sends more records than can be kept");
    file_.append(records);
}

bool EventSpool::next(EventProperties& event) {
    while (!take_event(unread_, event)) {
        if (offset_ == file_.size()) return false;
        buffer_.erase(0, buffer_.size() - unread_.size());
        const std::size_t before = buffer_.size();
        file_.read(offset_, kReadSize, buffer_);
        if (buffer_.size() == before)
            throw RuntimeError(ErrorNumber::InputOutput, "The temporary file is cut off");
        offset_ += buffer_.size() - before;
        unread_ = buffer_;
    }
    return true;
}

void EventSpool::start_over() {
    buffer_.clear();
    unread_ = {};
    offset_ = 0;
}

}  // namespace tessarine
