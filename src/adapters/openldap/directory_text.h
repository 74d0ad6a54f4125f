// Texts on their way from and to a directory.
#pragma once

#include <string>
#include <string_view>

namespace tessarine {

/// The parts of a path, in the console's 8-bit code page.
struct DirectoryPath {
    std::string server;  ///< NAME or NAME:PORT; empty where the path has none
    std::string name;    ///< the distinguished name as it stands, blanks included
};

/// Takes a path of `DirectoryService` apart. Raises a RuntimeError for what is none.
DirectoryPath parse_directory_path(std::string_view path);

/// Whether the text can be a server's name or address, with a port or without.
bool is_server_name(std::string_view text);

/// A child's name from the bytes of a property, which are to be UTF-8 (RFC 4519): in the console's
/// code page, with "?" for each control character; empty for one that is too long.
std::string directory_name(std::string_view bytes);

/// A server's own words in one line of bounded length.
std::string directory_words(std::string_view bytes);

}  // namespace tessarine
