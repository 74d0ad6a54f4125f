#include "store/line_bounds.h"

#include <algorithm>
#include <experimental/simd>

namespace tessarine {

// The library has no fast way to look backwards.
std::size_t line_begin(std::string_view bytes, std::size_t at) {
    namespace simd = std::experimental;
    using Bytes = simd::native_simd<char>;
    while (at >= Bytes::size()) {
        const std::size_t start = at - Bytes::size();
        const Bytes read(bytes.data() + start, simd::element_aligned);
        const auto ends = read == '\n' || read == '\r';
        if (simd::any_of(ends))
            return start + static_cast<std::size_t>(simd::find_last_set(ends)) + 1;
        at = start;
    }
    while (at > 0 && !is_line_end(bytes[at - 1])) --at;
    return at;
}

std::size_t line_end(std::string_view bytes, std::size_t at) {
    const std::string_view rest = bytes.substr(at);
    const std::string_view line = rest.substr(0, rest.find('\n'));
    return at + std::min(line.find('\r'), line.size());
}

}  // namespace tessarine
