#include "adapters/wsman/wsman_event_result.h"

#include "adapters/wsman/basics/failure.h"
#include "adapters/wsman/records/event_items.h"

namespace tessarine {

WsmanEventResult::WsmanEventResult(SoapChannel& channel, const SoapRequests& requests,
                                   const HostClock& clock, const std::string& query,
                                   const std::string& temporary_folder,
                                   const QueryLimits& query_limits)
    : spool_(temporary_folder, query_limits.bytes),
      end_(std::chrono::steady_clock::now() + query_limits.time),
      enumeration_(channel, requests),
      items_(event_items(records_, clock)),
      most_records_(query_limits.records) {
    enumeration_.start(query, items_);
    spool_.append(records_);
}

void WsmanEventResult::start_over() {
    while (!enumeration_.is_finished()) pull();
    spool_.start_over();
    given_ = 0;
}

bool WsmanEventResult::next(EventProperties& event) {
    while (!spool_.next(event)) {
        if (enumeration_.is_finished()) return false;
        pull();
    }
    if (++given_ > most_records_) raise_failure("The host's records don't come to an end");
    return true;
}

void WsmanEventResult::pull() {
    if (std::chrono::steady_clock::now() > end_)
        raise_failure("The host's records don't come to an end");
    records_.clear();
    enumeration_.pull(items_);
    spool_.append(records_);
}

}  // namespace tessarine
