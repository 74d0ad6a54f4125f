// Where the event store keeps its files. This alone makes a path of the store.
//
// A path has the platform's separator, and a run of "\" and "/" counts as one separator: a log path
// may end in one, and a host's name may begin with "\\" and still finds the host's files. Below the
// log path a name whose case is another stands for the file or folder too, as in a store that was
// carried over from Windows; an exact name goes first.
#pragma once

#include <string>
#include <string_view>

#include "core/event_log.h"
#include "platform/date_time.h"

namespace tessarine {

class Files;

/// `name` in `folder`.
std::string path_in(std::string_view folder, std::string_view name);

/// The folders under `log_path`: of the event log files, of the audit logs, and the parent that the
/// archive has as long as both paths of the settings are the same.
std::string data_folder(Files& files, std::string_view log_path);
std::string logs_folder(Files& files, std::string_view log_path);
std::string archive_parent_folder(Files& files, std::string_view log_path);

/// Whether files can be named after `host`. A name that holds a separator after its first letter
/// or a control character, one of more than 200 characters, "." and ".." name none.
bool can_name_files(std::string_view host);

/// The file of one log of a host. This and the two below raise "Bad file name" for a host that
/// can't name files.
std::string host_log_path(Files& files, std::string_view log_path, std::string_view host,
                          EventLog log);

/// The folder for the copies that are made of a host's files at the minute of `moment`.
std::string archive_folder(Files& files, std::string_view archive_path, std::string_view host,
                           const DateTime& moment);

/// The copy of one log in that folder.
std::string archived_log_path(Files& files, std::string_view archive_path, std::string_view host,
                              const DateTime& moment, EventLog log);

/// The report of a day's scheduled run.
std::string run_report_path(Files& files, std::string_view log_path, const Date& day);

/// The audit log of a day.
std::string audit_log_path(Files& files, std::string_view log_path, const Date& day);

}  // namespace tessarine
