// The hosts that are there when no others are asked for.
#pragma once

#include <cstdint>
#include <vector>

#include "sample_network/hosts/sample_host.h"

namespace tessarine::sample {

/// Their newest records are at `newest`; the large one has `large_count` records.
std::vector<SampleHost> built_in_hosts(Instant newest, std::uint32_t large_count);

}  // namespace tessarine::sample
