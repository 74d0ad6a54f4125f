#include "audit/log_archive.h"

#include "core/console_state.h"
#include "platform/clock.h"
#include "platform/files.h"
#include "store/log_files.h"

namespace tessarine {
namespace {

// KEEP(archive-stamp-is-taken-anew): one stamp for the whole step would let an audit pass in which
// the minute changes.
std::string present_folder(Console& console, const std::string& host) {
    return archive_folder(console.platform.files, console.Form3->txtArchivePath.text, host,
                          console.platform.clock.now());
}

}  // namespace

void archive_event_logs(Console& console, const std::string& host) {
    Files& files = console.platform.files;
    if (!files.folder_exists(present_folder(console, host)))
        files.create_folder(present_folder(console, host));
    files.demand_own_folder(present_folder(console, host));
    for (const EventLog log : kEventLogs) {
        const std::string path = host_log_path(files, console.Form3->txtLogPath.text, host, log);
        if (files.file_exists(path))
            files.copy(path, archived_log_path(files, console.Form3->txtArchivePath.text, host,
                                               console.platform.clock.now(), log));
    }
}

}  // namespace tessarine
