// The running program.
#pragma once

#include <string>

namespace tessarine {

class Program {
  public:
    virtual ~Program() = default;

    /// The folder of the console's own files, without a final separator, 8-bit code page.
    virtual std::string application_directory() = 0;

    /// Ends the program in order, once the running event is done.
    virtual void end() = 0;
};

}  // namespace tessarine
