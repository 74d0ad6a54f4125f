// Hosts whose events a test has written down.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/event_source.h"

namespace tessarine::fakes {

/// One event with texts of its own; what a test leaves out is null.
struct HostEvent {
    using Text = std::optional<std::string>;
    Text LogFile = "System";
    Text Type = "information";
    Text TimeGenerated = "20041130235959.000000+060";
    Text SourceName = "Tcpip";
    Text EventCode = "4201";
    Text ComputerName = "PC1";
    Text Message = "Ready.";
    Text User = {};
};

/// What a host does; each text that isn't empty is the description of an error.
struct ScriptedHost {
    std::vector<HostEvent> records;
    std::string connect_error;
    std::string level_error;
    std::string query_error;
    /// The record, from 1, whose delivery fails in that pass, from 1, and why.
    int failing_pass = 0;
    int failing_record = 0;
    std::string record_error = "The network path was lost";
    /// Called before each record is delivered.
    std::function<void(int pass, int record)> before_record;
};

/// A host that nobody has spoken of can't be reached.
class ScriptedHosts final : public EventSource {
  public:
    std::unique_ptr<EventService> connect_server(
        const std::string& host, const std::string& name_space,
        const std::optional<Credentials>& credentials) override;

    std::map<std::string, ScriptedHost> hosts;

    // What was asked last, and the whole course as lines.
    std::string log;  ///< "connect PC1 root\cimv2", "authentication 6", "query SELECT ..."
    std::optional<Credentials> credentials;
    std::string query;
    int connects = 0;
};

}  // namespace tessarine::fakes
