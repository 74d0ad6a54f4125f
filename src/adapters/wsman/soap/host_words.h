// A host's own words in an error text, which ends up in the audit log and the status bar.
#pragma once

#include <string>
#include <string_view>

namespace tessarine {

/// `text` (console's code page) in one line, without white space in a row, cut to
/// limits::kFaultText: no host can put a line of its own into the audit log.
std::string host_words(std::string_view text);

}  // namespace tessarine
