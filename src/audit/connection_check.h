// Whether a host listens on TCP port 135: a fixed wait of three seconds with the window alive.
#pragma once

#include <string>

namespace tessarine {

struct Console;

/// Shows ConCheck for `host` and leaves "hostok" or "hostdown" in lblReturn of Form1. Reports
/// nothing itself.
void test_host(Console& console, const std::string& host);

/// Timer1 of ConCheck: the attempt ends and the form unloads itself.
void end_connection_attempt(Console& console);

}  // namespace tessarine
