// The audit engine: the one routine that takes events from a host.
#pragma once

#include <string>

namespace tessarine {

struct Console;

/// Which of the three logs an audit keeps.
struct LogSelection {
    bool SelSystem = true;
    bool SelApplication = true;
    bool SelSecurity = true;
};

/// Pulls the events of `HostName` into its three files. `Kind` is "full" or a date as month "/" day
/// "/" year. The outcome, "ok" or "error", is left in AuditStat, and a line in the audit log. Every
/// runtime error ends in that outcome.
void AuditHost(Console& console, const std::string& HostName, const std::string& Kind,
               const LogSelection& selection);

}  // namespace tessarine
