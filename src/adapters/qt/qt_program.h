// The running program.
#pragma once

#include "platform/program.h"

namespace tessarine {

/// Keeps the console's own files in the user's data folder: "tessarine" under $XDG_DATA_HOME, or
/// under ~/.local/share.
class QtProgram final : public Program {
  public:
    /// Makes the folder, for its owner alone. Raises a RuntimeError when that can't be done, or
    /// when the console's 8-bit code page can't hold its path.
    QtProgram();

    std::string application_directory() override { return folder_; }
    void end() override;

    bool ended() const { return ended_; }

  private:
    std::string folder_;
    bool ended_ = false;
};

}  // namespace tessarine
