#include "sample_network/wire/soap_fault.h"

namespace tessarine::sample {

FaultText fault_text(FaultKind kind) {
    switch (kind) {
        case FaultKind::AccessDenied:
            return {5, "w:AccessDenied", "Access is denied."};
        case FaultKind::QueryNotUnderstood:
            return {2150858778, "n:CannotProcessFilter", "The service can't process the query."};
        case FaultKind::UnknownContext:
            return {2150858779, "n:InvalidEnumerationContext",
                    "The enumeration context is not valid: it has ended or never was."};
        case FaultKind::TimedOut:
            return {2150858793, "w:TimedOut", "The operation has timed out."};
        case FaultKind::ItemTooLarge:
            return {2150858824, "w:EncodingLimit", "An item is larger than the envelope may be."};
        case FaultKind::PullDiffers:
            return {2150859181, "w:InvalidParameter",
                    "The limits of a Pull must be those of its Enumerate."};
        case FaultKind::TooManyEnumerations:
            return {2150859174, "w:QuotaLimit",
                    "The user has reached the maximum number of concurrent operations."};
        case FaultKind::RequestNotUnderstood:
            break;
    }
    return {2150858817, "w:SchemaValidationError", "The request is not understood."};
}

}  // namespace tessarine::sample
