// Opening files and addresses on the desktop.
#pragma once

#include "platform/shell.h"

namespace tessarine {

/// Where the compiled help file isn't there, its pages are opened, which lie beside the program.
class QtShell final : public Shell {
  public:
    void open(const std::string& target) override;
    bool has_program_for(const std::string& path) override;
};

}  // namespace tessarine
