// The memory of the running process.
#pragma once

namespace tessarine::bench {

/// In KiB: what the process holds now, and the most that it has held since its program started.
/// The second is not what getrusage(2) tells, which begins with the memory of the parent.
long present_memory();
long peak_memory();

}  // namespace tessarine::bench
