// The faults that a host answers with.
#pragma once

#include <cstdint>

namespace tessarine::sample {

enum class FaultKind {
    AccessDenied,
    QueryNotUnderstood,
    UnknownContext,
    TimedOut,
    ItemTooLarge,
    PullDiffers,
    TooManyEnumerations,
    RequestNotUnderstood,
};

/// A fault under way to the client.
struct SoapFault {
    FaultKind kind;
};

/// `code` is the number in WSManFault, `subcode` a name with one of the envelope's prefixes.
struct FaultText {
    std::uint32_t code;
    const char* subcode;
    const char* reason;
};

FaultText fault_text(FaultKind kind);

}  // namespace tessarine::sample
