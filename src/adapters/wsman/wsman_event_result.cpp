#include "adapters/wsman/wsman_event_result.h"

#include "adapters/wsman/event_items.h"

namespace tessarine {

WsmanEventResult::WsmanEventResult(SoapChannel& channel, const SoapRequests& requests,
                                   const HostClock& clock, const std::string& query,
                                   const std::string& temporary_folder)
    : spool_(temporary_folder),
      enumeration_(channel, requests),
      items_(event_items(records_, clock)) {
    enumeration_.start(query, items_);
    spool_.append(records_);
}

void WsmanEventResult::start_over() {
    while (!enumeration_.is_finished()) pull();
    spool_.start_over();
}

bool WsmanEventResult::next(EventProperties& event) {
    while (!spool_.next(event)) {
        if (enumeration_.is_finished()) return false;
        pull();
    }
    return true;
}

void WsmanEventResult::pull() {
    records_.clear();
    enumeration_.pull(items_);
    spool_.append(records_);
}

}  // namespace tessarine
