// The steps of a conversation between a client and a host.
#pragma once

namespace tessarine::sample {

/// `Enumerate` is only that of the records, not of the time zone. `Other` is also what the host
/// can't read.
enum class Moment { Connect, Knock, SignIn, Enumerate, Pull, Release, Other };

}  // namespace tessarine::sample
