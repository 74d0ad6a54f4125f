#include "adapters/openldap/walk_link.h"

#include <sys/socket.h>

#include <utility>

#include "adapters/openldap/limits.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

constexpr std::chrono::milliseconds kBetweenCalls{50};

std::string seconds_text(std::chrono::seconds time) {
    return std::to_string(time.count()) + " seconds";
}

}  // namespace

void WalkLink::ask(const std::string& peer) {
    const std::lock_guard lock(mutex_);
    peer_ = peer;
    touch();
}

void WalkLink::heard() {
    const std::lock_guard lock(mutex_);
    touch();
}

void WalkLink::touch() {
    if (stopped_) throw RuntimeError(ErrorNumber::Failed, "Nobody waits for the directory");
    last_word_ = Clock::now();
}

void WalkLink::add(DirectoryChild child) {
    const std::lock_guard lock(mutex_);
    touch();
    children_.push_back(std::move(child));
    changed_.notify_one();
}

void WalkLink::finish() {
    const std::lock_guard lock(mutex_);
    ended_ = true;
    changed_.notify_one();
}

void WalkLink::fail(const std::string& words) {
    const std::lock_guard lock(mutex_);
    if (failure_.empty()) failure_ = words;
    changed_.notify_one();
}

void WalkLink::use_socket(int socket) {
    const std::lock_guard lock(mutex_);
    socket_ = socket;
    if (stopped_) shut_down();
}

void WalkLink::stop() {
    const std::lock_guard lock(mutex_);
    stopped_ = true;
    shut_down();
}

void WalkLink::shut_down() {
    if (socket_ >= 0) shutdown(socket_, SHUT_RDWR);
}

void WalkLink::keep_limits() {
    const Clock::time_point now = Clock::now();
    if (now - last_word_ > silence_)
        failure_ = peer_ + " has been silent for " + seconds_text(silence_);
    else if (now - begin_ > directory_limits::kWalk)
        failure_ = "The directory takes more than " + seconds_text(directory_limits::kWalk);
}

void WalkLink::wait(std::unique_lock<std::mutex>& lock, const Hook& while_waiting) {
    changed_.wait_for(lock, kBetweenCalls);
    if (!while_waiting || Clock::now() - last_call_ < kBetweenCalls) return;
    lock.unlock();
    while_waiting();
    last_call_ = Clock::now();
    lock.lock();
}

void WalkLink::wait_for_first(const Hook& while_waiting) {
    std::unique_lock lock(mutex_);
    for (; children_.empty() && !ended_ && failure_.empty(); keep_limits())
        wait(lock, while_waiting);
    if (children_.empty() && !failure_.empty()) throw RuntimeError(ErrorNumber::Failed, failure_);
}

bool WalkLink::take(DirectoryChild& child, const Hook& while_waiting) {
    // The window lives also while children come without a pause.
    if (while_waiting && Clock::now() - last_call_ > kBetweenCalls) {
        while_waiting();
        last_call_ = Clock::now();
    }
    wait_for_first(while_waiting);
    const std::lock_guard lock(mutex_);
    if (children_.empty()) return false;
    child = std::move(children_.front());
    children_.pop_front();
    return true;
}

}  // namespace tessarine
