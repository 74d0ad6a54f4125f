#include "adapters/wsman/soap/text_scrub.h"

#include <array>
#include <charconv>
#include <cstdint>

#include "adapters/wsman/basics/ascii.h"

namespace tessarine {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
constexpr std::string_view kCarriageReturn = "&#13;";

// Bytes that stand for themselves wherever they are.
constexpr std::array<bool, 256> make_plain_table() {
    std::array<bool, 256> plain{};
    for (std::size_t i = 0x20; i < 0x80; ++i) plain[i] = i != '&';
    plain['\t'] = plain['\n'] = true;
    return plain;
}

constexpr auto kPlain = make_plain_table();

constexpr bool is_legal(std::uint32_t point) {
    return point == 0x9 || point == 0xA || point == 0xD || (point >= 0x20 && point <= 0xD7FF) ||
           (point >= 0xE000 && point <= 0xFFFD) || (point >= 0x10000 && point <= 0x10FFFF);
}

unsigned byte_at(std::string_view text, std::size_t i) {
    return i < text.size() ? static_cast<unsigned char>(text[i]) : 0;
}

// The length of the well-formed, legal character that begins with a byte above 0x7F; 0 for none.
std::size_t character_length(std::string_view text, std::size_t at) {
    const unsigned lead = byte_at(text, at);
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4) return 0;
    std::uint32_t point = lead & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const unsigned byte = byte_at(text, at + i);
        if ((byte & 0xC0) != 0x80) return 0;
        point = point << 6 | (byte & 0x3F);
    }
    const bool shortest = length == 2 || point >= (length == 3 ? 0x800u : 0x10000u);
    return shortest && is_legal(point) ? length : 0;
}

// The length of a character reference to an illegal character that begins at the "&"; 0 for any
// other text there.
std::size_t illegal_reference_length(std::string_view text, std::size_t at) {
    if (byte_at(text, at + 1) != '#') return 0;
    const bool hexadecimal = byte_at(text, at + 2) == 'x';
    const char* begin = text.data() + at + (hexadecimal ? 3 : 2);
    const char* end = text.data() + text.size();
    if (begin >= end) return 0;
    std::uint32_t point = 0;
    const auto [stop, error] = std::from_chars(begin, end, point, hexadecimal ? 16 : 10);
    if (error == std::errc::invalid_argument || stop == end || *stop != ';') return 0;
    if (error == std::errc{} && is_legal(point)) return 0;
    return static_cast<std::size_t>(stop - text.data()) + 1 - at;
}

class Scrub {
  public:
    Scrub(std::string_view document, std::string& cleaned)
        : document_(document), cleaned_(cleaned) {
        cleaned_.clear();
        root_ = document.find('<');
        while (root_ != std::string_view::npos && !is_ascii_letter(peek(root_ + 1)))
            root_ = document.find('<', root_ + 1);
    }

    void run() {
        while (at_ < document_.size()) {
            std::size_t end = at_;
            while (end < document_.size() && kPlain[byte_at(document_, end)]) ++end;
            keep(end - at_);
            if (at_ < document_.size()) take_special();
        }
    }

  private:
    char peek(std::size_t i) const { return static_cast<char>(byte_at(document_, i)); }

    void keep(std::size_t length) {
        cleaned_.append(document_, at_, length);
        at_ += length;
    }

    void replace(std::size_t length, std::string_view by) {
        cleaned_.append(by);
        at_ += length;
    }

    void take_special() {
        const char c = document_[at_];
        if (c == '\r') {
            replace(1, in_text() ? kCarriageReturn : "\r");
        } else if (c == '&') {
            const std::size_t illegal = illegal_reference_length(document_, at_);
            illegal != 0 ? replace(illegal, kReplacement) : keep(1);
        } else if (static_cast<signed char>(c) < 0 && character_length(document_, at_) != 0) {
            keep(character_length(document_, at_));
        } else {
            replace(1, kReplacement);
        }
    }

    // Between tags of the root element, where a reference may stand. Each byte is looked at once,
    // whatever the number of calls.
    bool in_text() {
        if (root_ == std::string_view::npos || at_ < root_) return false;
        const std::string_view unseen = document_.substr(seen_, at_ - seen_);
        const std::size_t mark = unseen.find_last_of("<>");
        if (mark != std::string_view::npos) after_tag_ = unseen[mark] == '>';
        seen_ = at_;
        return after_tag_;
    }

    std::string_view document_;
    std::string& cleaned_;
    std::size_t at_ = 0;
    std::size_t root_ = 0;
    std::size_t seen_ = 0;
    bool after_tag_ = false;
};

}  // namespace

void scrub(std::string_view document, std::string& cleaned) {
    constexpr std::string_view kFill("\0 \t\r\n", 5);
    Scrub(document.substr(0, document.find_last_not_of(kFill) + 1), cleaned).run();
}

}  // namespace tessarine
