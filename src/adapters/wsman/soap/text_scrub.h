// Makes a host's answer fit for an XML parser.
#pragma once

#include <string>
#include <string_view>

namespace tessarine {

/// Sets `cleaned` to `document` (UTF-8) without what XML 1.0 forbids: each illegal character,
/// malformed byte or reference to an illegal character is U+FFFD instead, for event texts do
/// contain such, and one of them would end the audit. A carriage return in a text becomes "&#13;",
/// because parsers turn a raw one into a line feed. White space and NULs after the document are
/// dropped.
void scrub(std::string_view document, std::string& cleaned);

}  // namespace tessarine
