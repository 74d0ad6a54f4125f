// The door between the console's 8-bit texts and the window's.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "core/code_page.h"

namespace tessarine {

inline QString to_qt(std::string_view text) {
    return QString::fromStdU16String(to_utf16(text));
}

inline std::string from_qt(const QString& text) {
    return from_utf16(text.toStdU16String());
}

/// A given name as an object's name.
inline QString object_name(std::string_view name) {
    return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

}  // namespace tessarine
