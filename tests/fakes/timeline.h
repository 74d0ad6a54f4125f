// Time that passes only when a test's window waits.
#pragma once

#include <functional>
#include <map>
#include <optional>

namespace tessarine::fakes {

/// Things that are to happen at moments counted in milliseconds from the start of the test.
class Timeline {
  public:
    using Number = int;

    int now() const { return now_; }

    Number at(int moment, std::function<void()> action) {
        waiting_.insert({moment, {++last_number_, std::move(action)}});
        return last_number_;
    }
    void forget(Number number) {
        std::erase_if(waiting_, [&](const auto& entry) { return entry.second.number == number; });
    }
    std::optional<int> next_moment() const {
        return waiting_.empty() ? std::nullopt : std::optional(waiting_.begin()->first);
    }
    /// Lets time pass up to `moment` at most, until one thing has happened.
    void pass_to(int moment) {
        if (waiting_.empty() || waiting_.begin()->first > moment) {
            now_ = moment;
            return;
        }
        const auto due = waiting_.extract(waiting_.begin());
        now_ = due.key() > now_ ? due.key() : now_;
        due.mapped().action();
    }

  private:
    struct Waiting {
        Number number;
        std::function<void()> action;
    };

    int now_ = 0;
    Number last_number_ = 0;
    std::multimap<int, Waiting> waiting_;
};

}  // namespace tessarine::fakes
