#include "adapters/openldap/directory_text.h"

#include <algorithm>

#include "adapters/openldap/limits.h"
#include "core/code_page.h"
#include "core/runtime_error.h"
#include "core/text.h"

namespace tessarine {
namespace {

constexpr std::string_view kScheme = "LDAP://";

bool is_of_server_name(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
           std::string_view(".-_:[]").find(c) != std::string_view::npos;
}

}  // namespace

bool is_server_name(std::string_view text) {
    return !text.empty() && std::all_of(text.begin(), text.end(), is_of_server_name);
}

DirectoryPath parse_directory_path(std::string_view path) {
    if (!path.starts_with(kScheme))
        throw RuntimeError(ErrorNumber::Failed,
                           "This is no path of a directory: \"" + std::string(path) + "\"");
    const std::string_view rest = path.substr(kScheme.size());
    const std::size_t slash = rest.find('/');
    // A slash within a name has an attribute's "=" somewhere in front of it.
    if (slash == std::string_view::npos || !is_server_name(rest.substr(0, slash)))
        return {"", std::string(rest)};
    return {std::string(rest.substr(0, slash)), std::string(rest.substr(slash + 1))};
}

std::string directory_name(std::string_view bytes) {
    if (bytes.size() > directory_limits::kName) return {};
    return without_controls(from_utf8(bytes));
}

std::string directory_words(std::string_view bytes) {
    return without_controls(from_utf8(bytes.substr(0, directory_limits::kWords)));
}

}  // namespace tessarine
