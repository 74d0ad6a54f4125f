#include "store/audit_log.h"

#include "core/console_state.h"
#include "core/runtime_error.h"
#include "platform/clock.h"
#include "store/log_files.h"

namespace tessarine {

void AuditLog::open(Console& console) {
    const std::string path = audit_log_path(console.platform.files, console.Form3->txtLogPath.text,
                                            console.platform.clock.now().date);
    file_ = console.platform.files.open(path, OpenFor::Appending);
}

void AuditLog::append(Console& console, const std::string& outcome) {
    if (file_ == nullptr) throw RuntimeError(ErrorNumber::BadFileName, "Bad file name or number");
    file_->write(console.regional.date_time(console.platform.clock.now()) + " " + outcome + "\r\n");
    file_->flush();
}

void AuditLog::close() {
    if (file_ != nullptr) file_->close();
    file_.reset();
}

}  // namespace tessarine
