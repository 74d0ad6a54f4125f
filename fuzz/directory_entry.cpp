// A directory's entries and words, and the paths that come of them: names are plain and bounded,
// and a path leads to the server and the object that stand in it.
#include <algorithm>
#include <string>

#include "adapters/openldap/directory_text.h"
#include "adapters/openldap/limits.h"
#include "core/code_page.h"
#include "fuzz/promises.h"

namespace tessarine::fuzz {
namespace {

bool is_plain(const std::string& text) {
    return std::all_of(text.begin(), text.end(),
                       [](unsigned char c) { return c >= 0x20 && c != 0x7F; });
}

void hold_for_path(const std::string& path) {
    DirectoryPath parts;
    if (!succeeds([&] { parts = parse_directory_path(path); })) return;
    hold(parts.server.empty() || is_server_name(parts.server), "a server is a server's name");
    const std::string server = parts.server.empty() ? "" : parts.server + "/";
    hold("LDAP://" + server + parts.name == path, "a path is taken apart and nothing is lost");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view bytes = text_of(data, size);
    const std::string name = directory_name(bytes);
    hold(name.size() <= directory_limits::kName, "a name is bounded");
    hold(is_plain(name), "a name has no control characters");
    const std::string words = directory_words(bytes);
    hold(words.size() <= directory_limits::kWords && is_plain(words), "words are short and plain");
    hold_for_path(std::string(bytes));
    hold_for_path("LDAP://" + std::string(bytes));
    // The console joins a name that it was given into its next path, which stays at the same
    // server.
    const std::string joined = "LDAP://CN=" + name + ", DC=example, DC=net";
    hold(parse_directory_path(joined).server.empty(), "no name leads to another server");
    return 0;
}

}  // namespace tessarine::fuzz
