// What the maker's site says of an event, in the desktop's browser.
#pragma once

#include <string>

namespace tessarine {

struct Console;

/// Opens the page on an event. The address holds the values as they are, blanks and all; what
/// becomes of it is not looked at.
void LookupEvent(Console& console, const std::string& EventCode, const std::string& EventSource);

/// The look-up of the selected row: of the event table on top, of the analysis table last used.
/// Raise a RuntimeError when it has no code or no source, or when no row is selected.
void mslookup(Console& console);
void lookupinquillard2(Console& console);

}  // namespace tessarine
