#include "sample_network/hosts/sample_host.h"

#include <strings.h>

#include <algorithm>
#include <fstream>
#include <stdexcept>

#include "sample_network/faults/fault_hosts.h"
#include "sample_network/hosts/event_files.h"
#include "sample_network/hosts/user_list.h"

namespace tessarine::sample {
namespace {

constexpr std::uint32_t kUsualCount = 5000;
constexpr std::size_t kFirstAddress = 11;
constexpr std::size_t kMostHosts = 200;

// All clocks of Europe change at one o'clock UTC on the last Sundays of March and October.
TimeZone european_zone(const char* name, int bias) {
    const int standard_hour = 1 + bias / 60;
    return {name, bias, -60, {10, 5, 0, standard_hour + 1}, {3, 5, 0, standard_hour}};
}

// South of the equator the daylight time lasts over the turn of the year.
TimeZone australian_zone(const char* name, int bias) {
    return {name, bias, -60, {4, 1, 0, 3}, {10, 1, 0, 2}};
}

// Hosts tell the bias of a daylight time that never comes as well.
TimeZone zone_without_summer_time(const char* name, int bias) {
    return {name, bias, -60, {}, {}};
}

// `count` records in the usual proportions.
std::vector<LogShare> usual_logs(std::uint32_t count) {
    const std::uint32_t application = count / 5;
    const std::uint32_t system = count / 4;
    const std::uint32_t shell = count / 50;
    return {{LogName::Application, application},
            {LogName::Security, count - application - system - shell},
            {LogName::System, system},
            {LogName::PowerShell, shell}};
}

HistoryPlan plan_for(const std::string& host, std::vector<LogShare> logs, Instant newest) {
    HistoryPlan plan;
    plan.computer_name = host + ".sample.example";
    plan.logs = std::move(logs);
    for (const char c : host) plan.seed = plan.seed * 31 + static_cast<unsigned char>(c);
    plan.newest = newest;
    return plan;
}

SampleHost english_host(const std::string& name, const std::string& description,
                        std::vector<LogShare> logs, Instant newest) {
    SampleHost host;
    host.name = name;
    host.description = description;
    host.time_zone = european_zone("GMT Standard Time", 0);
    host.history = generated_history(plan_for(name, std::move(logs), newest));
    return host;
}

SampleHost german_host(Instant newest) {
    SampleHost host;
    host.name = "BERLIN01";
    host.description = "a German server";
    host.time_zone = european_zone("W. Europe Standard Time", 60);
    HistoryPlan plan = plan_for(host.name, usual_logs(1800), newest);
    plan.language = Language::German;
    host.history = generated_history(plan);
    return host;
}

SampleHost faulty_host(const std::string& name, std::uint32_t count, std::string_view fault,
                       Instant newest) {
    const Fault& planned = *find_fault(fault);
    SampleHost host = usual_host(name, std::string(planned.description), count, newest);
    plan_fault(host, planned);
    return host;
}

bool same_name(const std::string& left, const std::string& right) {
    return strcasecmp(left.c_str(), right.c_str()) == 0;
}

SampleHost host_from_file(const std::filesystem::path& path) {
    std::ifstream lines(path);
    EventFile file = read_event_file(lines, path.filename().string());
    if (!lines.eof()) throw std::runtime_error("Can't read " + path.string());
    SampleHost host;
    host.name = path.stem().string();
    host.description = std::to_string(file.events.size()) + " records from a file";
    host.time_zone =
        zone_without_summer_time("Host Standard Time", static_cast<int>(file.offset.count()));
    host.history = history_of(std::move(file.events));
    return host;
}

}  // namespace

std::vector<SampleHost> built_in_hosts(Instant newest, std::uint32_t large_count) {
    std::vector<SampleHost> hosts;
    hosts.push_back(usual_host("FILESRV01", "an English server", kUsualCount, newest));
    hosts.push_back(german_host(newest));
    hosts.push_back(english_host("KIOSK07", "without any record", {}, newest));
    hosts.back().time_zone = zone_without_summer_time("Tokyo Standard Time", 540);
    hosts.push_back(english_host("WEBSRV02", "an empty Security log",
                                 {{LogName::Application, 400}, {LogName::System, 600}}, newest));
    hosts.back().time_zone = australian_zone("AUS Eastern Standard Time", 600);
    hosts.push_back(usual_host("LOGSRV01", "a large server", large_count, newest));
    hosts.back().time_zone = zone_without_summer_time("India Standard Time", 330);
    hosts.push_back(english_host("PRINTSRV01", "port 135 answers, 5985 is closed", {}, newest));
    hosts.back().state = HostState::PortMapperOnly;
    hosts.push_back(english_host("NOTEBOOK23", "down", {}, newest));
    hosts.back().state = HostState::Down;
    hosts.push_back(faulty_host("VAULT01", 200, "denied", newest));
    hosts.push_back(
        english_host("BRANCH09", "keeps its time zone to itself", usual_logs(300), newest));
    hosts.back().time_zone.reset();
    hosts.push_back(faulty_host("OLDSRV01", 2000, "old-limits", newest));
    hosts.push_back(faulty_host("BRANCH03", 500, "slow", newest));
    hosts.push_back(
        usual_host(kWorkgroupHost, "in no domain, with a user of its own", 500, newest));
    hosts.back().workgroup = true;
    hosts.push_back(english_host("GATEWAY01", "TLS alone, at port 5986",
                                 {{LogName::Security, 300}, {LogName::System, 200}}, newest));
    hosts.back().state = HostState::TlsOnly;
    give_addresses(hosts);
    return hosts;
}

SampleHost usual_host(const std::string& name, const std::string& description, std::uint32_t count,
                      Instant newest) {
    return english_host(name, description, usual_logs(count), newest);
}

void give_addresses(std::vector<SampleHost>& hosts) {
    if (hosts.size() > kMostHosts)
        throw std::runtime_error("There can't be more than " + std::to_string(kMostHosts) +
                                 " hosts");
    for (std::size_t i = 0; i < hosts.size(); ++i)
        hosts[i].address = "127.0.0." + std::to_string(kFirstAddress + i);
}

std::vector<SampleHost> hosts_from_files(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    for (const auto& entry : std::filesystem::directory_iterator(folder / "hosts"))
        if (entry.path().extension() == ".jsonl") files.push_back(entry.path());
    if (files.empty())
        throw std::runtime_error("There are no files *.jsonl in " + (folder / "hosts").string());
    std::sort(files.begin(), files.end());
    std::vector<SampleHost> hosts;
    std::transform(files.begin(), files.end(), std::back_inserter(hosts), host_from_file);
    give_addresses(hosts);
    return hosts;
}

SampleHost& host_called(std::vector<SampleHost>& hosts, const std::string& name) {
    const auto found = std::find_if(hosts.begin(), hosts.end(), [&](const SampleHost& host) {
        return same_name(host.name, name);
    });
    if (found == hosts.end()) throw std::runtime_error("There is no sample host " + name);
    return *found;
}

std::vector<SampleHost> only_hosts(std::vector<SampleHost> hosts,
                                   const std::vector<std::string>& names) {
    std::vector<SampleHost> chosen;
    for (const std::string& name : names) chosen.push_back(host_called(hosts, name));
    return chosen;
}

std::string hosts_file_lines(const std::vector<SampleHost>& hosts) {
    std::string lines;
    for (const SampleHost& host : hosts) lines += host.address + "\t" + host.name + "\n";
    return lines;
}

}  // namespace tessarine::sample
