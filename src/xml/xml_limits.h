// What one document may make a reader hold.
#pragma once

#include <cstddef>

namespace tessarine::limits {

inline constexpr std::size_t kElementDepth = 64;
/// Bytes of one tag and of one namespace's name. The parser writes the latter out before each name
/// in a tag, so that half a megabyte in one tag could become gigabytes.
inline constexpr std::size_t kTag = std::size_t{4} * 1024;
inline constexpr std::size_t kNameSpace = 256;

}  // namespace tessarine::limits
