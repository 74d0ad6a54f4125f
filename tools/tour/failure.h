// How the tour ends when something isn't as it should be.
#pragma once

#include <QString>

namespace tessarine::tour {

/// Says why on standard error and ends the program with status 1, from whatever depth of event
/// loops.
[[noreturn]] void fail(const QString& why);

inline void check(bool holds, const QString& otherwise) {
    if (!holds) fail(otherwise);
}

}  // namespace tessarine::tour
