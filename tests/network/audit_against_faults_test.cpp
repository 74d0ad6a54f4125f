// The audit engine with its real event source and real files, against hosts that misbehave.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <set>
#include <string>

#include "audit/custom_audit.h"
#include "network/fault_cases.h"
#include "network/wire_rig.h"
#include "sample_network/faults/fault_hosts.h"

namespace tessarine {
namespace {

using sample::Moment;
using sample::SampleHost;

constexpr sample::Instant kNewest = std::chrono::sys_days(std::chrono::year{2024} / 5 / 17);
constexpr std::uint32_t kRecords = 1000;
constexpr std::array kLogs = {"system", "application", "security"};

// How often a host has gone through each step.
using Steps = std::array<std::atomic<int>, sample::kMoments>;

SampleHost host_with(std::string_view fault, Steps* steps = nullptr) {
    SampleHost host = sample::generated_host("PC1", "", sample::usual_logs(kRecords), kNewest);
    if (!fault.empty()) sample::plan_fault(host, *sample::find_fault(fault));
    if (host.fault) host.fault->wait = std::min(host.fault->wait, std::chrono::milliseconds(200));
    host.address = "127.0.0.11";
    if (steps != nullptr)
        host.on_step = [steps](Moment step) { ++(*steps)[static_cast<std::size_t>(step)]; };
    return host;
}

int count_of(const Steps& steps, Moment step) {
    return steps[static_cast<std::size_t>(step)];
}

// Lets nothing take long; an endless host gets a little disk.
void be_impatient(WireRig& rig) {
    rig.options().operation_timeout = std::chrono::seconds(1);
    rig.options().query_limits.bytes = 4'000'000;
}

std::string test_name(const auto& each) {
    std::string name(each.param.fault);
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

void expect_failure(const FaultCase& expected) {
    Steps steps{};
    WireRig rig({host_with(expected.fault, &steps)});
    be_impatient(rig);
    std::filesystem::create_directories(rig.log_of("PC1", "system").parent_path());
    for (const char* log : kLogs) std::ofstream(rig.log_of("PC1", log)) << "kept";

    rig.audit("PC1");
    EXPECT_THAT(rig.outcome(), testing::StartsWith("error: "));
    EXPECT_THAT(rig.outcome(), testing::HasSubstr(std::string(expected.error)));
    EXPECT_THAT(rig.outcome(), testing::Not(testing::ContainsRegex("[\r\n]")));
    for (const char* log : kLogs) EXPECT_EQ(rig.bytes_of("PC1", log), "kept");
    // The host closes the one that asks how to sign in.
    EXPECT_LE(count_of(steps, Moment::Connect), 2);
    EXPECT_EQ(count_of(steps, Moment::Release), expected.parting == Parting::Release ? 1 : 0);
}

class FatalFault : public testing::TestWithParam<FaultCase> {};

TEST_P(FatalFault, EndsTheAuditInWords) {
    const auto begin = std::chrono::steady_clock::now();
    expect_failure(GetParam());
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(5));
}

INSTANTIATE_TEST_SUITE_P(Audit, FatalFault, testing::ValuesIn(kFatalFaults),
                         test_name<testing::TestParamInfo<FaultCase>>);

class SilentFault : public testing::TestWithParam<FaultCase> {};

TEST_P(SilentFault, EndsTheAuditInTime) {
    const auto begin = std::chrono::steady_clock::now();
    expect_failure(GetParam());
    const auto time = std::chrono::steady_clock::now() - begin;
    EXPECT_GT(time, std::chrono::seconds(5));
    EXPECT_LT(time, std::chrono::seconds(11));
}

INSTANTIATE_TEST_SUITE_P(Audit, SilentFault, testing::ValuesIn(kSilentFaults),
                         test_name<testing::TestParamInfo<FaultCase>>);

class HarmlessFault : public testing::TestWithParam<HarmlessCase> {};

TEST_P(HarmlessFault, LeavesTheAuditComplete) {
    WireRig good({host_with("")});
    good.audit("PC1");
    WireRig rig({host_with(GetParam().fault)});
    rig.audit("PC1");
    ASSERT_EQ(rig.outcome(), "ok: ");
    EXPECT_EQ(rig.bytes_of("PC1", "security"), good.bytes_of("PC1", "security"));
    EXPECT_EQ(rig.bytes_of("PC1", "application"), good.bytes_of("PC1", "application"));
    EXPECT_EQ(rig.bytes_of("PC1", "system"),
              std::string(GetParam().lines) + good.bytes_of("PC1", "system"));
}

INSTANTIATE_TEST_SUITE_P(Audit, HarmlessFault, testing::ValuesIn(kHarmlessFaults),
                         test_name<testing::TestParamInfo<HarmlessCase>>);

TEST(Faults, AHostWithMoreRecordsThanOneCanHoldIsGivenUp) {
    WireRig rig({host_with("endless")});
    be_impatient(rig);
    rig.options().query_limits.records = 5000;
    rig.audit("PC1");
    EXPECT_EQ(rig.outcome(), "error: The host's records don't come to an end - Audit error");
}

TEST(Faults, HaveACaseEach) {
    std::set<std::string_view> expected;
    for (const FaultCase& each : kFatalFaults) expected.insert(each.fault);
    for (const FaultCase& each : kSilentFaults) expected.insert(each.fault);
    for (const HarmlessCase& each : kHarmlessFaults) expected.insert(each.fault);
    std::set<std::string_view> present;
    for (const sample::Fault& fault : sample::all_faults()) present.insert(fault.name);
    EXPECT_EQ(present, expected);
}

// Forty hosts that fail, each in its own way, and a good one among them.
class ManyHosts : public testing::Test {
  protected:
    static constexpr std::size_t kFailing = 40;

    ManyHosts() : hosts_(failing_hosts()) {
        SampleHost good = host_with("");
        good.name = "GOOD";
        hosts_.insert(hosts_.begin() + kFailing / 2, std::move(good));
        sample::give_addresses(hosts_);
        for (const SampleHost& host : hosts_) names_.push_back(host.name);
    }

    static std::vector<SampleHost> failing_hosts() {
        std::vector<SampleHost> hosts;
        const auto add = [&](const FaultCase& each) {
            if (hosts.size() == kFailing) return;
            hosts.push_back(host_with(each.fault));
            hosts.back().name = each.fault;
        };
        // Two of the silent ones are enough to wait for.
        add(kSilentFaults[0]);
        add(kSilentFaults[2]);
        for (const FaultCase& each : kFatalFaults) add(each);
        return hosts;
    }

    std::vector<SampleHost> hosts_;
    std::vector<std::string> names_;
};

long peak_memory_kib() {
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line))
        if (line.starts_with("VmHWM:")) return std::stol(line.substr(6));
    return 0;
}

TEST_F(ManyHosts, DontKeepAnAuditFromTheGoodOne) {
    WireRig rig(hosts_);
    be_impatient(rig);
    rig.list_hosts(names_);
    rig.windows().when_shown(CustomAuditForm::kId, [](Console& console) {
        console.Form4->MonthView1.value = {2000, 1, 1};
        run_event(console, run_custom_audit);
    });
    [[maybe_unused]] const long before = peak_memory_kib();
    run_event(rig.console, runcustomforallhosts);
#ifndef __SANITIZE_ADDRESS__
    EXPECT_LT(peak_memory_kib() - before, 300 * 1024);
#endif

    const std::string log = rig.audit_log();
    EXPECT_EQ(std::count(log.begin(), log.end(), '\n'), 41);
    for (const std::string& name : names_) {
        const std::string ending = name == "GOOD" ? " Audit ok" : " Audit Error --";
        EXPECT_THAT(log, testing::HasSubstr(" " + rig.address_of(name) + ending));
        if (name == "GOOD") continue;
        for (const char* kind : kLogs) EXPECT_EQ(rig.bytes_of(name, kind), "") << name;
    }
    WireRig alone({host_with("")});
    alone.audit("PC1");
    for (const char* kind : kLogs)
        EXPECT_EQ(rig.bytes_of("GOOD", kind), alone.bytes_of("PC1", kind));
}

}  // namespace
}  // namespace tessarine
