// A query's records: pulled from the host in the first walk, read from a temporary file after it.
#pragma once

#include <string>

#include "adapters/wsman/enumeration.h"
#include "adapters/wsman/event_spool.h"
#include "adapters/wsman/host_clock.h"
#include "adapters/wsman/item_reader.h"
#include "platform/event_source.h"

namespace tessarine {

class WsmanEventResult final : public EventResult {
  public:
    /// Sends the query. `channel` outlives the result; `temporary_folder` as
    /// TemporaryFile takes it.
    WsmanEventResult(SoapChannel& channel, const SoapRequests& requests, const HostClock& clock,
                     const std::string& query, const std::string& temporary_folder);

    /// Pulls what is left, where the first walk was not finished.
    void start_over() override;
    bool next(EventProperties& event) override;

  private:
    void pull();

    EventSpool spool_;
    Enumeration enumeration_;
    std::string records_;  // Of one answer; kept for its memory.
    ItemReader items_;
};

}  // namespace tessarine
