// What is in a folder.
#pragma once

#include <string>
#include <vector>

namespace tessarine {

/// The names in `folder`, a path of the system, but "." and ".."; as the system has them and in its
/// order. Raises the RuntimeError of a folder that can't be read to its end.
std::vector<std::string> names_in_folder(const std::string& folder);

}  // namespace tessarine
