// A load of stored logs into the event tables: what it goes by, and what it finds.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "core/error_regime.h"
#include "core/event_log.h"
#include "tables/shown_types.h"
#include "tables/tab_marks.h"

namespace tessarine {

struct Console;

/// How a log is loaded.
struct LoadedLog {
    EventLog log;
    std::string_view ending;  ///< of the status text of each record
    std::span<const ShownType> types;
    std::string_view missing_text = {};  ///< what panel 1 says when there is no file
};

inline constexpr LoadedLog kSecurityLog{.log = EventLog::Security,
                                        .ending = " of security log",  // sic
                                        .types = kSecurityTypes,
                                        .missing_text = "No Security Event log"};
inline constexpr LoadedLog kSystemLog{
    .log = EventLog::System, .ending = " of System log", .types = kSystemTypes};
inline constexpr LoadedLog kApplicationLog{
    .log = EventLog::Application, .ending = " of Application log", .types = kApplicationTypes};

/// Numbers of one load, over all the logs that it reads.
struct LoadCounts {
    double total = 0;
    std::int32_t ignored = 0;
    std::int32_t highlighted = 0;
};

struct Load {
    Load(Console& its_console, const std::string& its_host, const ErrorRegime& its_errors)
        : console(its_console), host(its_host), errors(its_errors) {}

    Console& console;
    const std::string& host;
    const ErrorRegime& errors;
    LoadCounts counts;
    LogAlerts alerts;
};

}  // namespace tessarine
