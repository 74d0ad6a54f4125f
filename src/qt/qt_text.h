// The door between the console's 8-bit texts and Qt's.
#pragma once

#include <QString>
#include <string>
#include <string_view>

#include "core/code_page.h"

namespace tessarine {

inline QString to_qt(std::string_view text) {
    return QString::fromStdU16String(to_utf16(text));
}

/// What the 8-bit code page lacks is lost.
inline std::string from_qt(const QString& text) {
    return from_utf16(text.toStdU16String());
}

/// Whether the text comes back whole from the 8-bit code page.
inline bool survives_code_page(const QString& text) {
    return to_qt(from_qt(text)) == text;
}

/// A given name as an object's name.
inline QString object_name(std::string_view name) {
    return QString::fromLatin1(name.data(), static_cast<qsizetype>(name.size()));
}

}  // namespace tessarine
