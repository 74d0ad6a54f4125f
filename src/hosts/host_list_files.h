// Host list files: plain text, one host name a line, in the console's 8-bit code page.
#pragma once

#include <string>

#include "platform/dialogs.h"

namespace tessarine {

struct Console;

/// Lets the user choose a file; empty when he cancels. `filters` are captions and patterns in turn,
/// separated by ";" or "|"; "All Files (*.*)" is always added after them.
std::string BrowseForFile(Console& console, FilePurpose purpose, const std::string& start_folder,
                          const std::string& filters, const std::string& title);

/// Fills the host list from a file that the user chooses, names in upper case. Errors are ignored:
/// a file that can't be read gives an empty or shortened list.
void loadfrmlist(Console& console);

/// Writes the names of the host list to a file that the user names, after a question when there is
/// one of that name. Errors are ignored, also by the text that tells of the success.
void exporthostlist(Console& console);

}  // namespace tessarine
