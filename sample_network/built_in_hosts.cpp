#include "sample_network/built_in_hosts.h"

#include "sample_network/faults/fault_hosts.h"
#include "sample_network/wire/user_list.h"

namespace tessarine::sample {
namespace {

SampleHost faulty_host(const std::string& name, std::uint32_t count, std::string_view fault,
                       Instant newest) {
    const Fault& planned = *find_fault(fault);
    SampleHost host =
        generated_host(name, std::string(planned.description), usual_logs(count), newest);
    plan_fault(host, planned);
    return host;
}

}  // namespace

std::vector<SampleHost> built_in_hosts(Instant newest, std::uint32_t large_count) {
    std::vector<SampleHost> hosts;
    hosts.push_back(generated_host("FILESRV01", "an English server", usual_logs(5000), newest));
    hosts.push_back(
        generated_host("BERLIN01", "a German server", usual_logs(1800), newest, Language::German));
    hosts.back().time_zone = european_zone("W. Europe Standard Time", 60);
    hosts.push_back(generated_host("KIOSK07", "without any record", {}, newest));
    hosts.back().time_zone = zone_without_summer_time("Tokyo Standard Time", 540);
    hosts.push_back(generated_host("WEBSRV02", "an empty Security log",
                                   {{LogName::Application, 400}, {LogName::System, 600}}, newest));
    hosts.back().time_zone = australian_zone("AUS Eastern Standard Time", 600);
    hosts.push_back(generated_host("LOGSRV01", "a large server", usual_logs(large_count), newest));
    hosts.back().time_zone = zone_without_summer_time("India Standard Time", 330);
    hosts.push_back(generated_host("PRINTSRV01", "port 135 answers, 5985 is closed", {}, newest));
    hosts.back().state = HostState::PortMapperOnly;
    hosts.push_back(generated_host("NOTEBOOK23", "down", {}, newest));
    hosts.back().state = HostState::Down;
    hosts.push_back(faulty_host("VAULT01", 200, "denied", newest));
    hosts.push_back(
        generated_host("BRANCH09", "keeps its time zone to itself", usual_logs(300), newest));
    hosts.back().time_zone.reset();
    hosts.push_back(faulty_host("OLDSRV01", 2000, "old-limits", newest));
    hosts.push_back(faulty_host("BRANCH03", 500, "slow", newest));
    hosts.push_back(generated_host(kWorkgroupHost, "in no domain, with a user of its own",
                                   usual_logs(500), newest));
    hosts.back().workgroup = true;
    hosts.push_back(generated_host("GATEWAY01", "TLS alone, at port 5986",
                                   {{LogName::Security, 300}, {LogName::System, 200}}, newest));
    hosts.back().state = HostState::TlsOnly;
    give_addresses(hosts);
    return hosts;
}

}  // namespace tessarine::sample
