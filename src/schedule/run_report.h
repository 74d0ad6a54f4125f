// The report of a scheduled run: a block of lines for each host.
#pragma once

#include <memory>
#include <string>

#include "core/event_log.h"
#include "platform/files.h"
#include "store/event_record.h"

namespace tessarine {

struct Console;

/// The report of one day; a second run on that day replaces it. All routines raise the errors of
/// the file.
class RunReport {
  public:
    void open(Console& console);

    /// The two lines that set a host apart. What is there of the hosts before is on disk by then.
    void begin_host();
    void add_host_down(const std::string& host);
    void add_audit_error(const std::string& host, const std::string& description);
    void add_success(const std::string& host);
    /// An event whose code is on the alert list. Raises "Subscript out of range" for a record
    /// without its seventh field.
    void add_alert(EventLog log, const EventRecord& record);

    void close();

    const std::string& path() const { return path_; }
    /// Whether any event was on the alert list.
    bool has_alerts() const { return has_alerts_; }

  private:
    void add_line(const std::string& line);

    std::string path_;
    bool has_alerts_ = false;
    std::unique_ptr<File> file_;
};

}  // namespace tessarine
