// Where lines begin and end within bytes that hold many.
#pragma once

#include <cstddef>
#include <string_view>

namespace tessarine {

/// A CR or an LF ends a line. Between the two of a CR LF there is an empty one.
constexpr bool is_line_end(char character) {
    return character == '\n' || character == '\r';
}

/// Where the line begins that the position `at` lies in: after the last line end before it.
std::size_t line_begin(std::string_view bytes, std::size_t at);

/// Where it ends: at the first line end at or after `at`, or with the bytes.
std::size_t line_end(std::string_view bytes, std::size_t at);

}  // namespace tessarine
