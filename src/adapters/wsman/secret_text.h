// A copy of a secret that is overwritten before its memory goes back.
#pragma once

#include <cstring>
#include <string>

namespace tessarine {

class SecretText {
  public:
    /// Overwrites `text` too: a short one would stay where it was even if it were moved.
    explicit SecretText(std::string text) : text_(text) {
        explicit_bzero(text.data(), text.size());
    }
    SecretText(const SecretText&) = delete;
    SecretText& operator=(const SecretText&) = delete;
    ~SecretText() { explicit_bzero(text_.data(), text_.size()); }

    const std::string& text() const { return text_; }

  private:
    std::string text_;
};

}  // namespace tessarine
