// The steps of a conversation between a client and a host.
#pragma once

#include <cstddef>

namespace tessarine::sample {

/// `Knock` asks how to sign in. `Enumerate` is only that of the records, not of the time zone.
/// `Other` is also what the host can't read.
enum class Moment { Connect, Knock, SignIn, Enumerate, Pull, Release, Other };
inline constexpr std::size_t kMoments = 7;

}  // namespace tessarine::sample
