// The lines of a text file, as one byte after the other has them.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tessarine::fuzz {

using Lines = std::vector<std::string>;

/// CR LF, a lone CR and a lone LF each end a line.
inline Lines plain_lines(std::string_view bytes) {
    Lines lines;
    std::string line;
    bool open = false;
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        open = bytes[i] != '\r' && bytes[i] != '\n';
        if (open) {
            line += bytes[i];
            continue;
        }
        if (bytes[i] == '\r' && i + 1 < bytes.size() && bytes[i + 1] == '\n') ++i;
        lines.push_back(std::exchange(line, {}));
    }
    if (open) lines.push_back(line);
    return lines;
}

/// The same, without those that are empty.
inline Lines filled_lines(std::string_view bytes) {
    Lines lines = plain_lines(bytes);
    std::erase(lines, "");
    return lines;
}

}  // namespace tessarine::fuzz
