// Event logs made up by rule: the same plan always gives the same records.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "sample_network/hosts/message_templates.h"
#include "sample_network/hosts/sample_event.h"

namespace tessarine::sample {

struct LogShare {
    LogName log;
    std::uint32_t records;
};

/// The logs are walked in the given order, each from its newest record, at `newest`, back to about
/// `newest - span`.
struct HistoryPlan {
    Language language = Language::English;
    std::string computer_name;
    std::vector<LogShare> logs;
    std::uint64_t seed = 1;
    Instant newest;
    std::chrono::days span{30};
};

EventHistory generated_history(HistoryPlan plan);

}  // namespace tessarine::sample
