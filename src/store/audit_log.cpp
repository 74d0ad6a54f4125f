#include "store/audit_log.h"

#include "core/console_state.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "platform/clock.h"
#include "store/log_files.h"

namespace tessarine {
namespace {

constexpr std::size_t kLongestOutcome = 1900;
constexpr std::size_t kLongestLine = 2000;

}  // namespace

void AuditLog::open(Console& console) {
    const std::string path = audit_log_path(console.platform.files, console.Form3->txtLogPath.text,
                                            console.platform.clock.now().date);
    file_ = console.platform.files.open(path, OpenFor::Appending);
    // An audit that a full disk ends has its line all the same.
    file_->reserve(kLongestLine);
}

void AuditLog::append(Console& console, const std::string& outcome) {
    if (file_ == nullptr) throw RuntimeError(ErrorNumber::BadFileName, "Bad file name or number");
    file_->write_whole(console.regional.date_time(console.platform.clock.now()) + " " +
                       without_controls(outcome.substr(0, kLongestOutcome)) + "\r\n");
}

// What has been appended is on the disk, whatever a close says.
void AuditLog::close() {
    file_.reset();
}

}  // namespace tessarine
