#include "sample_network/hosts/sample_host.h"

#include <strings.h>

#include <algorithm>
#include <fstream>
#include <stdexcept>

#include "sample_network/hosts/event_files.h"

namespace tessarine::sample {
namespace {

constexpr std::size_t kFirstAddress = 11;
constexpr std::size_t kMostHosts = 200;

HistoryPlan plan_for(const std::string& host, std::vector<LogShare> logs, Instant newest) {
    HistoryPlan plan;
    plan.computer_name = host + ".sample.example";
    plan.logs = std::move(logs);
    for (const char c : host) plan.seed = plan.seed * 31 + static_cast<unsigned char>(c);
    plan.newest = newest;
    return plan;
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

std::vector<LogShare> usual_logs(std::uint32_t count) {
    const std::uint32_t application = count / 5;
    const std::uint32_t system = count / 4;
    const std::uint32_t shell = count / 50;
    return {{LogName::Application, application},
            {LogName::Security, count - application - system - shell},
            {LogName::System, system},
            {LogName::PowerShell, shell}};
}

SampleHost generated_host(const std::string& name, const std::string& description,
                          std::vector<LogShare> logs, Instant newest, Language language) {
    SampleHost host;
    host.name = name;
    host.description = description;
    host.time_zone = european_zone("GMT Standard Time", 0);
    HistoryPlan plan = plan_for(name, std::move(logs), newest);
    plan.language = language;
    host.history = generated_history(plan);
    return host;
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
    chosen.reserve(names.size());
    for (const std::string& name : names) chosen.push_back(host_called(hosts, name));
    return chosen;
}

std::string hosts_file_lines(const std::vector<SampleHost>& hosts) {
    std::string lines;
    for (const SampleHost& host : hosts) lines += host.address + "\t" + host.name + "\n";
    return lines;
}

}  // namespace tessarine::sample
