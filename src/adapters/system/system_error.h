// What the system refuses, in the console's own words.
#pragma once

#include <string>

namespace tessarine {

/// What a name that isn't there was to be.
enum class Wanted { File, Folder };

/// Raises the RuntimeError that says what the number `error` of <cerrno> means.
[[noreturn]] void raise_system_error(int error, Wanted wanted = Wanted::File);

/// A path of the console as the system takes it: "/" for every separator, since no file name of the
/// console holds a "\", and UTF-8. Raises "Bad file name" when it holds a zero character, which
/// would end it early.
std::string system_path(const std::string& path);

}  // namespace tessarine
