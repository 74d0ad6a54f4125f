#include "store/log_files.h"

#include <algorithm>
#include <filesystem>

#include "core/log_facts.h"
#include "core/runtime_error.h"
#include "core/text.h"
#include "platform/files.h"

namespace tessarine {
namespace {

constexpr std::size_t kLongestHost = 200;

bool is_separator(char character) {
    return character == '\\' || character == '/';
}

bool is_control(char character) {
    return static_cast<unsigned char>(character) < 0x20 || character == '\x7F';
}

// The host without the separators that it begins with.
std::string_view bare_name(std::string_view host) {
    const auto* start = std::find_if_not(host.begin(), host.end(), is_separator);
    return host.substr(static_cast<std::size_t>(start - host.begin()));
}

// The description of the error goes into a line of the audit log, so it may hold no line end.
[[noreturn]] void refuse(std::string_view host) {
    throw RuntimeError(ErrorNumber::BadFileName,
                       "The host name \"" + without_controls(host.substr(0, kLongestHost)) +
                           "\" can't name a file");
}

// The name as it stands: separators that it begins with are folded into the one before it.
std::string checked_name(std::string_view host) {
    if (!can_name_files(host)) refuse(host);
    return std::string(host);
}

std::string file_name(std::string_view host, EventLog log) {
    return checked_name(host).append(facts_of(log).file_suffix);
}

// Day, month and year with two digits each, or as many as the year needs.
std::string dashed(const Date& day, int year) {
    return padded(day.day, 2) + "-" + padded(day.month, 2) + "-" + padded(year, 2);
}

std::string entry_of(Files& files, std::string_view folder, const std::string& name) {
    return path_in(folder, files.present_name(std::string(folder), name));
}

}  // namespace

std::string path_in(std::string_view folder, std::string_view name) {
    constexpr char kSeparator = std::filesystem::path::preferred_separator;
    std::string path(folder);
    path.append(1, kSeparator).append(name);
    std::replace_if(path.begin(), path.end(), is_separator, kSeparator);
    const auto same_separator = [](char left, char right) {
        return left == kSeparator && right == kSeparator;
    };
    path.erase(std::unique(path.begin(), path.end(), same_separator), path.end());
    return path;
}

std::string data_folder(Files& files, std::string_view log_path) {
    return entry_of(files, log_path, "Data");
}

std::string logs_folder(Files& files, std::string_view log_path) {
    return entry_of(files, log_path, "Logs");
}

std::string archive_parent_folder(Files& files, std::string_view log_path) {
    return entry_of(files, log_path, "Archive");
}

bool can_name_files(std::string_view host) {
    const std::string_view name = bare_name(host);
    return name.size() <= kLongestHost && name != "." && name != ".." &&
           std::none_of(name.begin(), name.end(),
                        [](char c) { return is_separator(c) || is_control(c); });
}

std::string host_log_path(Files& files, std::string_view log_path, std::string_view host,
                          EventLog log) {
    return entry_of(files, data_folder(files, log_path), file_name(host, log));
}

std::string archive_folder(Files& files, std::string_view archive_path, std::string_view host,
                           const DateTime& moment) {
    const std::string stamp = dashed(moment.date, moment.date.year % 100) + "-" +
                              padded(moment.time.hour, 2) + "-" + padded(moment.time.minute, 2);
    return entry_of(files, archive_parent_folder(files, archive_path),
                    checked_name(host) + "_" + stamp);
}

std::string archived_log_path(Files& files, std::string_view archive_path, std::string_view host,
                              const DateTime& moment, EventLog log) {
    return entry_of(files, archive_folder(files, archive_path, host, moment), file_name(host, log));
}

std::string audit_log_path(Files& files, std::string_view log_path, const Date& day) {
    return entry_of(files, logs_folder(files, log_path), dashed(day, day.year) + ".log");
}

std::string run_report_path(Files& files, std::string_view log_path, const Date& day) {
    return entry_of(files, logs_folder(files, log_path), dashed(day, day.year) + "_AutoAudit.log");
}

}  // namespace tessarine
