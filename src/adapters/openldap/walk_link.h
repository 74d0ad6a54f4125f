// What joins the console's thread to the one that talks to a directory.
#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <string>

#include "platform/directory_service.h"

namespace tessarine {

/// The library's calls wait for DNS, for Kerberos and for servers, some of them without a bound and
/// none with an eye on the window. So they run in a thread of their own, and the console waits
/// here.
class WalkLink {
  public:
    using Hook = std::function<void()>;

    /// `silence` is how long nothing may be heard from whoever is being asked.
    explicit WalkLink(std::chrono::seconds silence) : silence_(silence) {}

    // For the thread that talks. What raises a RuntimeError does so when nobody waits any more.

    /// `peer` is asked now: "DNS", or the name of a server.
    void ask(const std::string& peer);
    /// The peer has answered something.
    void heard();
    void add(DirectoryChild child);
    void finish();
    void fail(const std::string& words);
    /// The socket that is shut down when nobody waits any more; -1 for none.
    void use_socket(int socket);

    // For the console.

    /// Waits for the first child, the end or a failure.
    void wait_for_first(const Hook& while_waiting);
    /// Fills `child` with the next one; false after the last. Raises a RuntimeError for a failure.
    bool take(DirectoryChild& child, const Hook& while_waiting);
    /// Nobody waits any more.
    void stop();

  private:
    using Clock = std::chrono::steady_clock;

    void wait(std::unique_lock<std::mutex>& lock, const Hook& while_waiting);
    void keep_limits();
    void touch();
    void shut_down();

    const std::chrono::seconds silence_;
    const Clock::time_point begin_ = Clock::now();
    Clock::time_point last_call_ = Clock::now();  // of the hook; the console's alone

    std::mutex mutex_;
    std::condition_variable changed_;
    std::deque<DirectoryChild> children_;
    std::string peer_;
    std::string failure_;
    bool ended_ = false;
    bool stopped_ = false;
    int socket_ = -1;
    Clock::time_point last_word_ = Clock::now();
};

}  // namespace tessarine
