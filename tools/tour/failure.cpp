#include "tour/failure.h"

#include <cstdio>
#include <cstdlib>

namespace tessarine::tour {

void fail(const QString& why) {
    std::fflush(stdout);
    std::fprintf(stderr, "The tour ends early: %s\n", qPrintable(why));
    std::fflush(stderr);
    std::_Exit(1);
}

}  // namespace tessarine::tour
