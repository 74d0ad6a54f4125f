// The pictures of menus and toolbar, from the desktop's icon theme.
#pragma once

#include <QIcon>
#include <string_view>

namespace tessarine {

/// Takes the icon theme whose names `menu_icon` uses. To be called once the application is there.
void choose_icon_theme();

/// The picture for a key of the menu image list, or for a button that has no key there, by its name
/// or its entry's; empty when the theme lacks it.
QIcon menu_icon(std::string_view key);

}  // namespace tessarine
