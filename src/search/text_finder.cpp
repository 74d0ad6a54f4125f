#include "search/text_finder.h"

#include <experimental/simd>
#include <optional>

#include "core/code_page.h"
#include "core/text.h"

namespace tessarine {
namespace {

namespace simd = std::experimental;
using Bytes = simd::native_simd<char>;
using Places = Bytes::mask_type;

constexpr std::size_t kWidth = Bytes::size();
constexpr std::size_t kUnrolled = 4;

// What is frequent in event logs, the most frequent first. All other characters are rare.
constexpr std::string_view kFrequent = " entiarsodlucgmhp01f2345w6789yb.:kv-/,_zxj\\~q";

// The place of the rarest character other than `but`; the last place where there is no other.
std::size_t rarest_place(std::string_view text, std::optional<char> but) {
    std::size_t rarest = text.size() - 1;
    std::size_t rarity = 0;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::size_t rank = text[i] == but ? 0 : kFrequent.find(text[i]);
        if (rank > rarity) {
            rarest = i;
            rarity = rank;
        }
    }
    return rarest;
}

Bytes load(const char* place) {
    return Bytes(place, simd::element_aligned);
}

}  // namespace

// KEEP(search-takes-bars-for-blanks): in the line as it stands no text would run over the border of
// two fields, and one with a "|" would be found.
TextFinder::TextFinder(std::string_view text)
    : text_(lower_text(text)), findable_(text.find_first_of("|\r\n") == std::string_view::npos) {
    for (std::size_t byte = 0; byte < folded_.size(); ++byte)
        folded_[byte] = static_cast<char>(lower_case(static_cast<unsigned char>(byte)));
    folded_['|'] = ' ';
    if (text_.empty()) return;
    const std::size_t rarest = rarest_place(text_, {});
    first_ = probe_at(rarest);
    second_ = probe_at(rarest_place(text_, text_[rarest]));
}

TextFinder::Probe TextFinder::probe_at(std::size_t offset) const {
    unsigned different = 0;
    const auto character = static_cast<unsigned char>(text_[offset]);
    for (unsigned byte = 0; byte < folded_.size(); ++byte)
        if (folded_[byte] == text_[offset]) different |= byte ^ character;
    return {.offset = offset,
            .mask = static_cast<char>(different),
            .key = static_cast<char>(character | different)};
}

// Most of the bytes are passed over by two comparisons of a whole vector each.
std::size_t TextFinder::find(std::string_view bytes, std::size_t from) const {
    if (!findable_ || bytes.size() - from < text_.size()) return kNowhere;
    if (text_.empty()) return from;
    const Bytes mask1 = first_.mask, key1 = first_.key, mask2 = second_.mask, key2 = second_.key;
    const auto candidates = [&](const char* place) -> Places {
        return (load(place + first_.offset) | mask1) == key1 &&
               (load(place + second_.offset) | mask2) == key2;
    };
    const char* const end = bytes.data() + bytes.size() - text_.size() + 1;  // after all places
    const char* place = bytes.data() + from;
    const auto remaining = [&] { return static_cast<std::size_t>(end - place); };
    for (; remaining() >= kWidth; place += kWidth) {
        while (remaining() >= kUnrolled * kWidth &&
               simd::none_of(candidates(place) || candidates(place + kWidth) ||
                             candidates(place + 2 * kWidth) || candidates(place + 3 * kWidth)))
            place += kUnrolled * kWidth;
        if (remaining() < kWidth) break;
        for (Places left = candidates(place); simd::any_of(left);) {
            const int i = simd::find_first_set(left);
            if (is_at(place + i)) return static_cast<std::size_t>(place + i - bytes.data());
            left[static_cast<std::size_t>(i)] = false;
        }
    }
    for (; place < end; ++place)
        if (is_at(place)) return static_cast<std::size_t>(place - bytes.data());
    return kNowhere;
}

bool TextFinder::is_at(const char* place) const {
    for (const char character : text_)
        if (folded_[static_cast<unsigned char>(*place++)] != character) return false;
    return true;
}

}  // namespace tessarine
