// The audit log: one line for each audit that ended.
#pragma once

#include <memory>
#include <string>

#include "platform/files.h"

namespace tessarine {

struct Console;

/// The audit log of one day, open from the start of an audit to its end.
class AuditLog {
  public:
    /// Opens the log of the present day, which is created when it is missing, and keeps room for a
    /// line. Raises the errors of the file.
    void open(Console& console);

    /// Appends the present date and time, a blank, and `outcome`, as one line that is on the disk
    /// when this returns. Raises the errors of the file, and then has appended nothing.
    void append(Console& console, const std::string& outcome);

    /// Closing a log that isn't open has no effect.
    void close();

  private:
    std::unique_ptr<File> file_;
};

}  // namespace tessarine
