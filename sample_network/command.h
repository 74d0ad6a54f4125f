// Running a program to its end, with all that it starts.
#pragma once

#include <signal.h>

#include <string>
#include <vector>

namespace tessarine::sample {

using Texts = std::vector<std::string>;

/// The environment of this process, as NAME=VALUE.
Texts current_environment();

/// Holds back the signals that would end this process, and those of its children, so that they can
/// be waited for. Make it before the first thread; it lasts as long as the process.
class HeldSignals {
  public:
    HeldSignals();

    /// Waits for a signal to end, or, where `until_input_ends`, for the end of standard input.
    void wait_for_end(bool until_input_ends) const;

    /// Starts a program that runs beside this process, and ends with it at the latest.
    void start(const Texts& arguments, const Texts& environment) const;

    /// Runs `arguments` in `environment` and waits. Signals to end are handed on; whatever the
    /// program leaves running is ended with it, and everything is ended with this process. Returns
    /// its exit status, 128 + N when signal N ended it, 127 when it can't be started.
    int run_command(const Texts& arguments, const Texts& environment) const;

  private:
    pid_t fork_command(const Texts& arguments, const Texts& environment) const;
    [[noreturn]] void become_command(const std::vector<char*>& arguments,
                                     const std::vector<char*>& environment, pid_t parent) const;
    int wait_for_command(pid_t command) const;

    sigset_t held_;
    sigset_t before_;
};

}  // namespace tessarine::sample
