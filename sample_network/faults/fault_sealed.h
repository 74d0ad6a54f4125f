// Faults in the sealed form of a message.
#pragma once

#include "sample_network/faults/fault.h"

namespace tessarine::sample::faults {

void tell_wrong_length(SealedAnswer answer);
void tell_long_header(SealedAnswer answer);
void drop_end_boundary(SealedAnswer answer);
void change_byte(SealedAnswer answer);
void replay(SealedAnswer answer);
void go_unsealed(SealedAnswer answer);

}  // namespace tessarine::sample::faults
