#include "adapters/browse/browsed_name.h"

#include <algorithm>

#include "adapters/browse/browse_limits.h"
#include "core/code_page.h"
#include "core/text.h"

namespace tessarine {
namespace {

// Also what stands for a character that the code page lacks.
constexpr std::string_view kInNoName = "\\/:*?\"<>|";

bool is_control(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte < 0x20 || byte == 0x7F;
}

}  // namespace

std::optional<std::string> browsed_name(std::string_view text) {
    if (text.size() > browse_limits::kName) return std::nullopt;
    std::string name = from_utf8(text);
    const bool fits = !name.empty() && name.front() != ' ' && name.back() != ' ' &&
                      name.find_first_not_of('.') != std::string::npos &&
                      name.find_first_of(kInNoName) == std::string::npos &&
                      std::none_of(name.begin(), name.end(), is_control);
    if (!fits) return std::nullopt;
    return name;
}

std::string browsed_comment(std::string_view text) {
    std::string comment = from_utf8(text.substr(0, browse_limits::kComment));
    std::replace_if(comment.begin(), comment.end(), is_control, ' ');
    return comment;
}

std::optional<BrowsedComputer> browsed_computer(std::string_view text) {
    const std::size_t slash = text.find_first_of("/\\");
    const std::size_t colon = text.find(':');
    if (colon == std::string_view::npos || slash > colon) return std::nullopt;
    const std::string_view kind = text.substr(slash + 1, colon - slash - 1);
    if (!same_text(kind, "Workgroup") && !same_text(kind, "Domain")) return std::nullopt;
    const auto name = browsed_name(text.substr(0, slash));
    const auto group = browsed_name(text.substr(colon + 1));
    if (!name || !group) return std::nullopt;
    return BrowsedComputer{*name, *group};
}

}  // namespace tessarine
