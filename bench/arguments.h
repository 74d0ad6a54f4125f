// The words after the name of a command.
#pragma once

#include <initializer_list>
#include <map>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace tessarine::bench {

/// The command was not called as it wants to be.
class UsageError : public std::invalid_argument {
  public:
    using std::invalid_argument::invalid_argument;
};

/// Plain words, and options of the form "--name value".
class Arguments {
  public:
    /// Raises a UsageError for an option that isn't known or has no value, and when the number of
    /// plain words is not within the two limits.
    Arguments(std::span<char* const> words, std::initializer_list<std::string_view> known_options,
              std::size_t fewest, std::size_t most);

    const std::vector<std::string>& plain() const { return plain_; }
    bool has(std::string_view option) const { return options_.contains(option); }
    /// The value of an option, or `fallback` when it isn't there.
    std::string value(std::string_view option, const std::string& fallback = "") const;
    /// The same as a number; raises a UsageError when it is none.
    int number(std::string_view option, int fallback) const;

  private:
    std::vector<std::string> plain_;
    std::map<std::string, std::string, std::less<>> options_;
};

/// A text of digits as a number of `what`; raises a UsageError when it is none.
int number_of(const std::string& digits, const std::string& what);

}  // namespace tessarine::bench
