#include "bench/arguments.h"

#include <algorithm>
#include <charconv>

namespace tessarine::bench {

Arguments::Arguments(std::span<char* const> words,
                     std::initializer_list<std::string_view> known_options, std::size_t fewest,
                     std::size_t most) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string word = words[i];
        if (!word.starts_with("--")) {
            plain_.push_back(word);
            continue;
        }
        if (std::find(known_options.begin(), known_options.end(), word) == known_options.end())
            throw UsageError("there is no option " + word);
        if (i + 1 == words.size()) throw UsageError(word + " wants a value");
        options_[word] = words[++i];
    }
    if (plain_.size() < fewest) throw UsageError("there are too few words");
    if (plain_.size() > most) throw UsageError("there are too many words");
}

std::string Arguments::value(std::string_view option, const std::string& fallback) const {
    const auto found = options_.find(option);
    return found == options_.end() ? fallback : found->second;
}

int Arguments::number(std::string_view option, int fallback) const {
    return has(option) ? number_of(value(option), std::string(option)) : fallback;
}

int number_of(const std::string& digits, const std::string& what) {
    int number = 0;
    const char* end = digits.data() + digits.size();
    const auto [read_to, error] = std::from_chars(digits.data(), end, number);
    if (error != std::errc() || read_to != end || number < 0)
        throw UsageError(what + " wants a number, not \"" + digits + "\"");
    return number;
}

}  // namespace tessarine::bench
