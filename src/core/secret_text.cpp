#include "core/secret_text.h"

#include <algorithm>
#include <cstddef>

namespace tessarine {
namespace {

void overwrite(volatile char* bytes, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) bytes[i] = 0;
}

}  // namespace

void wipe(std::string& text) {
    // A text that was longer before has left its end behind.
    text.resize(text.capacity());
    overwrite(text.data(), text.size());
    text.clear();
}

SecretText& SecretText::operator=(std::string_view text) {
    forget();
    // At once, so that the memory is taken once.
    bytes_.resize(text.size() + 1);
    text.copy(bytes_.data(), text.size());
    return *this;
}

void SecretText::replace(std::size_t start, std::size_t count, std::string&& text) {
    const std::string_view old = this->text();
    const std::size_t from = std::min(start, old.size());
    std::string whole;
    whole.reserve(old.size() + text.size());
    whole.append(old.substr(0, from))
        .append(text)
        .append(old.substr(from + std::min(count, old.size() - from)));
    *this = whole;
    wipe(whole);
    wipe(text);
}

void SecretText::forget() {
    overwrite(bytes_.data(), bytes_.size());
    bytes_.clear();
}

}  // namespace tessarine
