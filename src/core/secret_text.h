// A text that is overwritten before its memory goes back.
#pragma once

#include <memory_resource>
#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

/// Overwrites every byte of `text`, whatever the optimiser thinks of it, and empties it.
void wipe(std::string& text);

class SecretText {
  public:
    /// `memory` is where the text lies.
    explicit SecretText(std::pmr::memory_resource* memory = std::pmr::get_default_resource())
        : bytes_(memory) {}
    /// Takes over `text`, of which no copy stays behind.
    explicit SecretText(std::string&& text) {
        *this = text;
        wipe(text);
    }
    SecretText(const SecretText&) = delete;
    SecretText& operator=(const SecretText&) = delete;
    ~SecretText() { forget(); }

    SecretText& operator=(std::string_view text);

    /// Puts `text`, of which no copy stays behind, in place of `count` characters from `start` on,
    /// as far as there are any.
    void replace(std::size_t start, std::size_t count, std::string&& text);

    /// Valid until the text changes. A NUL follows it, for callees that measure it themselves.
    std::string_view text() const {
        return bytes_.empty() ? std::string_view("")
                              : std::string_view(bytes_.data(), bytes_.size() - 1);
    }

  private:
    void forget();

    // A vector: short strings lie in the string itself and not in its memory.
    std::pmr::vector<char> bytes_;
};

}  // namespace tessarine
