// Memory that runs out: one allocation of this program fails.
#pragma once

namespace tessarine::faults {

/// The allocation of that number from now on, counted from 1, raises std::bad_alloc; none does
/// for 0.
void fail_allocation(int number);

/// Whether it has come to that.
bool allocation_has_failed();

}  // namespace tessarine::faults
