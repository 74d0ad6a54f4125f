// The console's own pictures, drawn when they are shown, so that they are sharp at any scale. They
// are told apart by their shapes as well as by their colours.
#pragma once

#include <QIcon>
#include <QVariant>

#include "core/icons.h"

namespace tessarine {

/// Picture of that number (core/icons.h) in the image list of the tables, as an icon; no value for
/// any other number.
QVariant list_picture(int number);

/// What the picture tells somebody who doesn't see it; no value where a text beside it does.
QVariant picture_description(int number);

/// Picture of that number in the details of an event: 1 warning, 2 error, 3 information, 4 audit
/// success, 5 audit failure. None for any other number.
QIcon event_picture(int number);

/// Picture of a tab.
QIcon tab_picture(int number);

}  // namespace tessarine
