#include "sample_network/faults/fault_hosts.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <stdexcept>

namespace tessarine::sample {
namespace {

constexpr std::uint32_t kRecords = 1000;

bool waits(const Fault& fault) {
    return fault.wait.count() > 0;
}

std::string host_name(const Fault& fault) {
    std::string name = "FAULT-";
    for (const char c : fault.name) name += static_cast<char>(std::toupper(c));
    return name;
}

int number_in(std::string_view text) {
    int number = 0;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc{} || stop != end || number < 0)
        throw std::runtime_error(std::string(text) + " is no number of a fault");
    return number;
}

const Fault& fault_called(std::string_view name) {
    const Fault* fault = find_fault(name);
    if (fault == nullptr)
        throw std::runtime_error("There is no fault \"" + std::string(name) +
                                 "\"; --list-faults tells all");
    return *fault;
}

}  // namespace

void plan_fault(SampleHost& host, const Fault& fault, std::optional<int> number) {
    host.fault = {&fault, fault.pull, fault.wait};
    if (number && waits(fault))
        host.fault->wait = std::chrono::milliseconds(*number);
    else if (number)
        host.fault->pull = *number;
    if (fault.host != nullptr) fault.host(host);
}

void plan_fault(std::vector<SampleHost>& hosts, std::string_view text) {
    const std::size_t equals = text.find('=');
    const std::size_t colon = std::min(text.find(':'), text.size());
    if (equals == std::string_view::npos || equals > colon)
        throw std::runtime_error("\"" + std::string(text) + "\" is no HOST=FAULT[:N]");
    const Fault& fault = fault_called(text.substr(equals + 1, colon - equals - 1));
    std::optional<int> number;
    if (colon != text.size()) number = number_in(text.substr(colon + 1));
    plan_fault(host_called(hosts, std::string(text.substr(0, equals))), fault, number);
}

void add_faulty_hosts(std::vector<SampleHost>& hosts, Instant newest) {
    for (const Fault& fault : all_faults()) {
        hosts.push_back(generated_host(host_name(fault), std::string(fault.description),
                                       usual_logs(kRecords), newest));
        plan_fault(hosts.back(), fault);
    }
    give_addresses(hosts);
}

std::string fault_list() {
    std::string list;
    for (const Fault& fault : all_faults()) {
        std::string name(fault.name);
        if (waits(fault))
            name += ":" + std::to_string(fault.wait.count());
        else if (fault.moment == Moment::Pull)
            name += ":" + std::to_string(fault.pull);
        name.resize(std::max(name.size(), std::size_t{22}), ' ');
        list += name + " " + std::string(fault.description) + "\n";
    }
    return list;
}

}  // namespace tessarine::sample
