// The three event log files of a host while an audit writes them.
#pragma once

#include <array>
#include <memory>
#include <string>

#include "audit/audit_host.h"
#include "platform/event_source.h"
#include "platform/files.h"
#include "store/event_record.h"
#include "store/log_files.h"

namespace tessarine {

struct Console;

class EventFiles {
  public:
    EventFiles(const RegionalText& regional, const LogSelection& selection);

    /// Opens all three as the audit option in the settings says, against other audits of the host.
    /// Raises the errors of the archive and of the files, and one where another audit writes them.
    void open(Console& console, const std::string& host);

    /// Writes the record to the file of its log; one of another log, or of a log that isn't
    /// selected, is dropped. Raises the errors of the file, and "Type mismatch" for a record
    /// without a time.
    void write(const EventProperties& event);

    /// Sees all three onto the disk and closes them, also when one of them fails, and then raises
    /// that failure. Closing files that aren't open has no effect.
    void close();

  private:
    struct LogFile {
        EventLog log;
        bool selected;
        std::unique_ptr<File> file;
    };

    std::unique_ptr<FileLock> lock_;
    std::array<LogFile, 3> logs_;
    RecordWriter writer_;
};

}  // namespace tessarine
