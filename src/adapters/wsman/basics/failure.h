// The errors of this adapter: a description in words is all that the console needs.
#pragma once

#include <string>

#include "core/runtime_error.h"

namespace tessarine {

/// Raises a RuntimeError of the kind `Failed`.
[[noreturn]] inline void raise_failure(const std::string& description) {
    throw RuntimeError(ErrorNumber::Failed, description);
}

/// Nothing listens at the port: the connection was refused.
struct PortClosed : RuntimeError {
    using RuntimeError::RuntimeError;
};

}  // namespace tessarine
