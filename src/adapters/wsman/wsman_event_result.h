// A query's records: pulled from the host in the first walk, read from a temporary file after it.
#pragma once

#include <chrono>
#include <cstdint>
#include <string>

#include "adapters/wsman/basics/limits.h"
#include "adapters/wsman/records/event_spool.h"
#include "adapters/wsman/records/host_clock.h"
#include "adapters/wsman/soap/enumeration.h"
#include "adapters/wsman/soap/item_reader.h"
#include "platform/event_source.h"

namespace tessarine {

/// What one query may take of this machine's disk and of the user's time.
struct QueryLimits {
    std::uint64_t bytes = limits::kQuerySize;
    std::uint64_t records = limits::kQueryRecords;
    std::chrono::seconds time = limits::kQuery;
};

class WsmanEventResult final : public EventResult {
  public:
    /// Sends the query. `channel` outlives the result; `temporary_folder` as
    /// TemporaryFile takes it.
    WsmanEventResult(SoapChannel& channel, const SoapRequests& requests, const HostClock& clock,
                     const std::string& query, const std::string& temporary_folder,
                     const QueryLimits& query_limits = {});

    /// Pulls what is left, where the first walk was not finished.
    void start_over() override;
    bool next(EventProperties& event) override;

  private:
    void pull();

    EventSpool spool_;
    std::chrono::steady_clock::time_point end_;
    Enumeration enumeration_;
    std::string records_;  // Of one answer; kept for its memory.
    ItemReader items_;
    std::uint64_t most_records_;
    std::uint64_t given_ = 0;
};

}  // namespace tessarine
