// The files of a small directory that slapd serves.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "sample_network/command.h"

namespace tessarine::sample {

/// A container or an organizational unit right below the domain, and the objects in it.
struct DirectoryFolder {
    enum class Kind { Container, Unit };
    Kind kind = Kind::Container;
    std::string name;
    Texts objects;
};

/// `count` names from `stem` and numbers of four digits and more: PC0001, PC0002 ...
Texts numbered_names(const std::string& stem, int count);

/// Lines of slapd.conf for what Windows does: an answer has a thousand objects at the most, and
/// their number in all pages has no limit.
inline constexpr std::string_view kLimitsOfWindows =
    "sizelimit size.soft=1000 size.hard=1000 size.pr=1000 size.prtotal=unlimited\n";

/// Whether slapd is there.
bool has_directory_program();

/// Writes the files into `folder`, for the domain of two or more parts, such as "sample.example".
/// `settings` are lines of slapd.conf for its database.
void write_directory(const std::filesystem::path& folder, std::string_view domain,
                     const std::vector<DirectoryFolder>& content,
                     std::string_view settings = kLimitsOfWindows);

/// A command that reads the files and then serves them at `address` until it is ended.
Texts directory_command(const std::filesystem::path& folder, const std::string& address);

}  // namespace tessarine::sample
