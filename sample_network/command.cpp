#include "sample_network/command.h"

#include <poll.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <thread>

#include "sample_network/wire/file_descriptor.h"

namespace tessarine::sample {
namespace {

constexpr int kNotStarted = 127;
constexpr int kSignalBase = 128;
constexpr timespec kPatience{5, 0};

// For execve: holds as long as the texts.
std::vector<char*> pointers(const Texts& texts) {
    std::vector<char*> result;
    for (const std::string& text : texts) result.push_back(const_cast<char*>(text.c_str()));
    result.push_back(nullptr);
    return result;
}

int exit_status(int status) {
    return WIFEXITED(status) ? WEXITSTATUS(status) : kSignalBase + WTERMSIG(status);
}

// Children of this process, also those that came to it when their parents ended.
std::vector<pid_t> children() {
    std::vector<pid_t> found;
    for (const auto& task : std::filesystem::directory_iterator("/proc/self/task")) {
        std::ifstream list(task.path() / "children");
        for (pid_t child = 0; list >> child;) found.push_back(child);
    }
    return found;
}

void reap() {
    while (waitpid(-1, nullptr, WNOHANG) > 0) continue;
}

// What the command left behind gets two seconds to end itself.
void end_leftovers() {
    constexpr int kRounds = 40;
    constexpr std::chrono::milliseconds kRound{50};
    reap();
    for (int round = 0; round < 2 * kRounds; ++round) {
        const std::vector<pid_t> left = children();
        if (left.empty()) return;
        for (const pid_t child : left) kill(child, round < kRounds ? SIGTERM : SIGKILL);
        std::this_thread::sleep_for(kRound);
        reap();
    }
}

}  // namespace

Texts current_environment() {
    Texts result;
    for (char** variable = environ; *variable != nullptr; ++variable)
        result.emplace_back(*variable);
    return result;
}

HeldSignals::HeldSignals() {
    sigemptyset(&held_);
    for (const int number : {SIGINT, SIGQUIT, SIGTERM, SIGHUP, SIGCHLD}) sigaddset(&held_, number);
    checked(sigprocmask(SIG_BLOCK, &held_, &before_), "sigprocmask");
}

void HeldSignals::wait_for_end(bool until_input_ends) const {
    sigset_t ending = held_;
    sigdelset(&ending, SIGCHLD);
    const FileDescriptor signals(checked(signalfd(-1, &ending, SFD_CLOEXEC), "signalfd"));
    std::array<pollfd, 2> watched = {
        {{signals.get(), POLLIN, 0}, {until_input_ends ? STDIN_FILENO : -1, POLLIN, 0}}};
    while (poll(watched.data(), watched.size(), -1) >= 0 || errno == EINTR) {
        if (watched[0].revents != 0) return;
        std::array<char, 4096> ignored;
        if (watched[1].revents != 0 && read(STDIN_FILENO, ignored.data(), ignored.size()) <= 0)
            return;
    }
}

int HeldSignals::run_command(const Texts& arguments, const Texts& environment) const {
    checked(prctl(PR_SET_CHILD_SUBREAPER, 1), "prctl");
    const int status = wait_for_command(fork_command(arguments, environment));
    end_leftovers();
    return exit_status(status);
}

void HeldSignals::start(const Texts& arguments, const Texts& environment) const {
    fork_command(arguments, environment);
}

pid_t HeldSignals::fork_command(const Texts& arguments, const Texts& environment) const {
    const std::vector<char*> argument_pointers = pointers(arguments);
    const std::vector<char*> variables = pointers(environment);
    const pid_t self = getpid();
    const pid_t command = checked(fork(), "fork");
    if (command == 0) become_command(argument_pointers, variables, self);
    return command;
}

void HeldSignals::become_command(const std::vector<char*>& arguments,
                                 const std::vector<char*>& environment, pid_t parent) const {
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != parent) _exit(kNotStarted);
    sigprocmask(SIG_SETMASK, &before_, nullptr);
    execvpe(arguments[0], arguments.data(), environment.data());
    std::cerr << arguments[0] << ": " << std::strerror(errno) << '\n';
    _exit(kNotStarted);
}

int HeldSignals::wait_for_command(pid_t command) const {
    bool asked_to_end = false;
    while (true) {
        int status = 0;
        const pid_t ended = waitpid(-1, &status, WNOHANG);
        if (ended == command) return status;
        if (ended > 0) continue;
        siginfo_t info{};
        const int number =
            asked_to_end ? sigtimedwait(&held_, &info, &kPatience) : sigwaitinfo(&held_, &info);
        if (number < 0 && errno == EAGAIN) kill(command, SIGKILL);
        // Signals of the terminal reach the command anyway.
        if (number <= 0 || number == SIGCHLD || info.si_code == SI_KERNEL) continue;
        kill(command, number);
        asked_to_end = true;
    }
}

}  // namespace tessarine::sample
