// The web site of the program's maker, chosen when the program is built.
#pragma once

#include <string>
#include <string_view>

namespace tessarine {

/// The site's host name.
std::string_view maker_site();

/// The address of a page of the site. `path` begins with "/", or is empty for the home page.
std::string maker_address(std::string_view path);

}  // namespace tessarine
