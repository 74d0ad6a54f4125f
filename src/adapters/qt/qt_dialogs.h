// Messages and file choosers of the desktop.
#pragma once

#include <functional>

#include "platform/dialogs.h"

class QFileDialog;

namespace tessarine {

enum class FileChooser { OfTheDesktop, OfQt };

class QtDialogs final : public Dialogs {
  public:
    /// `before_showing` is called first, so that the windows behind a dialog show what is true.
    QtDialogs(FileChooser chooser, std::string first_folder,
              std::function<void()> before_showing = {});

    MessageAnswer message_box(const std::string& text, MessageStyle style,
                              const std::string& title = {}) override;
    void beep() override;

    /// A start folder that isn't there counts as that of the file chosen last, at first as
    /// `first_folder`. A path that the 8-bit code page can't hold is refused with a message, and
    /// counts as cancelled.
    std::string choose_file(FilePurpose purpose, const std::string& start_folder,
                            const std::vector<FileFilter>& filters,
                            const std::string& title) override;
    std::string choose_folder(const std::string& title) override;
    std::string ask_save_name(const std::string& proposed_name) override;

  private:
    std::string path_chosen_in(QFileDialog& chooser);

    FileChooser chooser_;
    std::string last_folder_;
    std::function<void()> before_showing_;
};

}  // namespace tessarine
