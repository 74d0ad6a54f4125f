// The environment that a test runs in.
#pragma once

#include <cstdlib>
#include <locale>
#include <optional>
#include <stdexcept>
#include <string>

namespace tessarine::fakes {

/// A variable of the environment, for the time of a test.
class Environment {
  public:
    Environment(const char* name, const char* value) : name_(name) {
        if (const char* before = std::getenv(name)) before_ = before;
        ::setenv(name, value, 1);
    }
    ~Environment() {
        if (before_)
            ::setenv(name_, before_->c_str(), 1);
        else
            ::unsetenv(name_);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

  private:
    const char* name_;
    std::optional<std::string> before_;
};

inline bool has_locale(const char* name) {
    try {
        return std::locale(name).name() == name;
    } catch (const std::runtime_error&) {
        return false;
    }
}

}  // namespace tessarine::fakes
