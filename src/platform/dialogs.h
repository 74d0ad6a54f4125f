// The system's own dialogs: messages and choosers.
#pragma once

#include <string>
#include <vector>

namespace tessarine {

/// A question has the buttons Yes and No. Its default is No, since a Yes loses something.
enum class MessageStyle { Information, Exclamation, Critical, YesNoQuestion };
enum class MessageAnswer { Ok, Yes, No };

enum class FilePurpose { Open, Save };

/// One kind of file in a chooser: what the user reads and what the names match, as in
/// {"Text File (*.txt)", "*.txt"}.
struct FileFilter {
    std::string caption;
    std::string pattern;
};

class Dialogs {
  public:
    virtual ~Dialogs() = default;

    /// Without a title of its own the box has the application's.
    virtual MessageAnswer message_box(const std::string& text, MessageStyle style,
                                      const std::string& title = {}) = 0;

    virtual void beep() = 0;

    /// The path of the chosen file; empty when the user cancels. A name to save under can be new,
    /// and whether a file of that name is replaced is left to the caller to ask.
    virtual std::string choose_file(FilePurpose purpose, const std::string& start_folder,
                                    const std::vector<FileFilter>& filters,
                                    const std::string& title) = 0;

    /// The path of the folder that the user chooses; empty when the user cancels.
    virtual std::string choose_folder(const std::string& title) = 0;

    /// The path that the user gives a file that is to be saved, which begins as `proposed_name`;
    /// empty when the user cancels.
    virtual std::string ask_save_name(const std::string& proposed_name) = 0;
};

}  // namespace tessarine
