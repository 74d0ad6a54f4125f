// The settings: named text values in the store, and the controls that hold them while it runs.
#pragma once

#include <string>
#include <string_view>

#include "platform/settings_values.h"

namespace tessarine {

struct Console;

/// The key under which all values stand. Writers end it with a separator, readers don't.
inline constexpr std::string_view kSettingsKey = "SOFTWARE\\Tessarine";

/// What an absent value reads as.
inline constexpr std::string_view kNotFound = "Not Found";

/// The key that hides the stored password from a casual look.
inline constexpr std::string_view kScrambleKey = "BrackenHollowFernsideMeadows";

/// The text of a value, or "Not Found".
std::string ReadValue(const Console& console, const std::string& name);

/// Writes a text (type 1) or the number that `data` reads as (type 4). Failures are ignored.
void WriteValue(const Console& console, const std::string& name, ValueType type,
                const std::string& data);

/// "Not Found" becomes the empty text.
std::string NotFoundToEmpty(const std::string& text);

/// Brings all values into the controls of Form3 and the menus of Form1.
void LoadSettings(Console& console);

}  // namespace tessarine
