// Hosts from files: one event a line, each line a JSON object.
#pragma once

#include <filesystem>
#include <istream>
#include <string>
#include <vector>

#include "sample_network/hosts/sample_event.h"

namespace tessarine::sample {

/// The records of one host, in the file's order. `offset` is the one that most records carry, and
/// so the host's distance from UTC.
struct EventFile {
    std::vector<SampleEvent> events;
    std::chrono::minutes offset{0};
};

/// Reads UTF-8 lines of the fields LogFile, Type, TimeGenerated, TimeWritten (DMTF), SourceName,
/// EventCode, ComputerName, User and Message; User and Message may be null. Raises a
/// std::runtime_error that names `name` and the line when a line is none of these.
EventFile read_event_file(std::istream& lines, const std::string& name);

/// A history that walks the events in their order.
EventHistory history_of(std::vector<SampleEvent> events);

}  // namespace tessarine::sample
