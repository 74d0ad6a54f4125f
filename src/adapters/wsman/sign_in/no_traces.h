// Leaves no copies of a secret behind in the libraries that are given it.
#pragma once

namespace tessarine {

/// While one exists, what its thread frees is overwritten first, whoever frees it; at its end, what
/// the calls meanwhile have left on the stack is, too. For a password passes through libraries, and
/// the NTLM plug-in's converters drop their copies as they are. Only where the C library is glibc.
class NoTraces {
  public:
    NoTraces();
    ~NoTraces();
    NoTraces(const NoTraces&) = delete;
    NoTraces& operator=(const NoTraces&) = delete;
};

}  // namespace tessarine
