// The desktop's clipboard.
#pragma once

#include <string>

namespace tessarine {

class Clipboard {
  public:
    virtual ~Clipboard() = default;

    virtual void clear() = 0;
    /// `text` is in the console's 8-bit code page, with CR LF between its lines.
    virtual void set_text(const std::string& text) = 0;
    /// The picture on the clipboard as the bytes of a bitmap file, with 24 bits a point. Raises a
    /// RuntimeError when there is none.
    virtual std::string picture() = 0;
};

}  // namespace tessarine
