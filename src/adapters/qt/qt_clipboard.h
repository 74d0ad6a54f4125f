// The clipboard of the desktop.
#pragma once

#include "platform/clipboard.h"

namespace tessarine {

class QtClipboard final : public Clipboard {
  public:
    void clear() override;
    void set_text(const std::string& text) override;
    std::string picture() override;
};

}  // namespace tessarine
