#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "sample_network/built_in_hosts.h"
#include "sample_network/faults/fault_hosts.h"
#include "sample_network/hosts/event_files.h"
#include "sample_network/wire/item_text.h"
#include "sample_network/wire/soap_text.h"
#include "sample_network/wsman_session.h"
#include "tests/network/sample_requests.h"

namespace tessarine::sample {
namespace {

using testing::HasSubstr;

// Record 1 carries `first_message`, all others a short one.
SampleHost host_with(int count, const std::string& first_message = "m") {
    std::vector<SampleEvent> events(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i) {
        events[static_cast<std::size_t>(i)].record_number = static_cast<std::uint32_t>(i + 1);
        events[static_cast<std::size_t>(i)].message = i == 0 ? first_message : "m";
        events[static_cast<std::size_t>(i)].time_written =
            Instant{*parse_day("2026-11-20")} - std::chrono::hours(i);
    }
    SampleHost host;
    host.name = "PC1";
    host.history = history_of(std::move(events));
    return host;
}

std::string repeated(const std::string& text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i) result += text;
    return result;
}

std::string fault_code(const SoapAnswer& answer) {
    const auto codes = texts_between(answer.text, "Code=\"", "\"");
    return codes.empty() ? "none" : codes.front();
}

TEST(SampleSession, HandsOutEveryRecordOnceWithinTheEnvelope) {
    constexpr int kEnvelope = 16'384;
    // Characters beyond the basic plane count two units and have four bytes.
    const SampleHost host = host_with(40, repeated("\xF0\x9F\x98\x80", 1000));
    WsmanSession session(host);
    std::string answer = session.answer(enumerate_message(kAllEvents, kEnvelope)).text;
    EXPECT_EQ(values_in(answer, "RecordNumber").size(), 1u);
    std::vector<std::string> numbers;
    int pulls = 0;
    for (;; ++pulls) {
        EXPECT_LE(utf16_length(answer), kEnvelope / 2u);
        const auto page = values_in(answer, "RecordNumber");
        EXPECT_LE(page.size(), 6u);
        numbers.insert(numbers.end(), page.begin(), page.end());
        const std::string context = context_in(answer);
        EXPECT_EQ(context.empty(), answer.find("EndOfSequence") != std::string::npos);
        if (context.empty()) break;
        answer = session.answer(pull_message(context, 6, kEnvelope)).text;
    }
    ASSERT_EQ(numbers.size(), 40u);
    for (int i = 0; i < 40; ++i)
        EXPECT_EQ(numbers[static_cast<std::size_t>(i)], std::to_string(i + 1));
    EXPECT_GE(pulls, 7);
}

TEST(SampleSession, FiltersByTheTimeOfWriting) {
    const SampleHost host = host_with(40);
    WsmanSession session(host);
    const std::string first =
        session
            .answer(enumerate_message("SELECT * FROM Win32_NTLogEvent WHERE"
                                      " TimeWritten &gt;= '20261119200000.000000+000' AND"
                                      " TimeWritten &lt; '20261119230000.000000+000'"))
            .text;
    const std::string rest = session.answer(pull_message(context_in(first))).text;
    EXPECT_THAT(values_in(first, "RecordNumber"), testing::ElementsAre("3"));
    EXPECT_THAT(values_in(rest, "RecordNumber"), testing::ElementsAre("4", "5"));
}

TEST(SampleSession, KnowsAContextOnce) {
    const SampleHost host = host_with(40);
    WsmanSession session(host);
    const std::string first = context_in(session.answer(enumerate_message(kAllEvents)).text);
    const std::string second = context_in(session.answer(pull_message(first, 5)).text);
    ASSERT_NE(first, second);
    EXPECT_EQ(fault_code(session.answer(pull_message(first, 5))), "2150858779");
    const std::string release =
        soap_message("Release", "<n:Release><n:EnumerationContext>" + second +
                                    "</n:EnumerationContext></n:Release>");
    EXPECT_EQ(session.answer(release).status, 200);
    EXPECT_EQ(fault_code(session.answer(pull_message(second, 5))), "2150858779");
}

TEST(SampleSession, AnswersFaults) {
    const SampleHost host = host_with(40, std::string(5000, 'x'));
    WsmanSession session(host);
    EXPECT_EQ(fault_code(session.answer(enumerate_message("SELECT"))), "2150858778");
    EXPECT_EQ(fault_code(session.answer("<s:Envelope>")), "2150858817");
    EXPECT_EQ(fault_code(
                  session.answer("<!DOCTYPE a [<!ENTITY b 'c'>]>" + enumerate_message(kAllEvents))),
              "2150858817");
    EXPECT_EQ(fault_code(session.answer(soap_message("Renew", ""))), "2150858817");
    EXPECT_EQ(fault_code(session.answer(enumerate_message(kAllEvents, 8191))), "2150858817");
    EXPECT_EQ(fault_code(session.answer(enumerate_message(kAllEvents, 8192))), "2150858824");
    const std::string context = context_in(session.answer(enumerate_message(kAllEvents)).text);
    EXPECT_EQ(fault_code(session.answer(pull_message(context, 5, 32'768))), "2150859181");
    for (int i = 0; i < 14; ++i) session.answer(enumerate_message(kAllEvents));
    const SoapAnswer refused = session.answer(enumerate_message(kAllEvents));
    EXPECT_EQ(fault_code(refused), "2150859174");
    EXPECT_EQ(refused.status, 500);
}

TEST(SampleSession, LeavesRoomForALongMessageNumber) {
    const SampleHost host = host_with(40);
    const auto ask = [&](const std::string& number) {
        std::string question = enumerate_message(kAllEvents);
        question.replace(question.find("uuid:1"), 6, number);
        return WsmanSession(host).answer(question);
    };
    EXPECT_EQ(fault_code(ask(std::string(201, 'x'))), "2150858817");
    const std::string text = ask(repeated("&gt;", 200)).text;
    const std::size_t items = text.rfind("</w:Items>") - text.find("<w:Items>");
    EXPECT_LE(utf16_length(text) - items, kEnvelopeReserve);
}

TEST(SampleSession, KeepsToTheLimitsOfAnOldHost) {
    SampleHost host = host_with(60, std::string(30'000, 'x'));
    plan_fault(host, *find_fault("old-limits"));
    WsmanSession session(host);
    const std::string first = session.answer(enumerate_message(kAllEvents)).text;
    const std::string second = session.answer(pull_message(context_in(first))).text;
    EXPECT_EQ(values_in(second, "RecordNumber").size(), 20u);

    SampleHost wide = host_with(1, std::string(80'000, 'x'));
    EXPECT_EQ(fault_code(WsmanSession(wide).answer(enumerate_message(kAllEvents))), "none");
    plan_fault(wide, *find_fault("old-limits"));
    EXPECT_EQ(fault_code(WsmanSession(wide).answer(enumerate_message(kAllEvents))), "2150858824");
}

TEST(SampleSession, AnswersAllAtOnceInTwoNamespaces) {
    SampleHost host = host_with(40);
    plan_fault(host, *find_fault("all-at-once"));
    const std::string text = WsmanSession(host).answer(enumerate_message(kAllEvents)).text;
    EXPECT_EQ(context_in(text), "");
    for (const auto& [prefix, count] : {std::pair{"w", 1u}, std::pair{"n", 39u}}) {
        const std::string p = prefix;
        const auto items = texts_between(text, "<" + p + ":Items>", "</" + p + ":Items>");
        ASSERT_EQ(items.size(), 1u);
        EXPECT_EQ(values_in(items.front(), "RecordNumber").size(), count);
    }
}

TEST(SampleFaults, ArePlannedByName) {
    std::vector<SampleHost> hosts = built_in_hosts({}, 20);
    plan_fault(hosts, "filesrv01=drop:3");
    EXPECT_EQ(hosts[0].fault->fault->name, "drop");
    EXPECT_EQ(hosts[0].fault->pull, 3);
    plan_fault(hosts, "FILESRV01=slow:20");
    EXPECT_EQ(hosts[0].fault->wait, std::chrono::milliseconds(20));
    EXPECT_EQ(hosts[0].fault->pull, 1);
    for (const char* text :
         {"", "FILESRV01", "FILESRV01:drop=1", "FILESRV01=", "FILESRV01=Drop", "NOBODY=drop",
          "FILESRV01=drop:", "FILESRV01=drop:x", "FILESRV01=drop:-1", "FILESRV01=drop:1x"})
        EXPECT_THROW(plan_fault(hosts, text), std::runtime_error) << text;
}

TEST(SampleFaults, HaveAHostEach) {
    std::vector<SampleHost> hosts = built_in_hosts({}, 20);
    const std::size_t before = hosts.size();
    add_faulty_hosts(hosts, {});
    EXPECT_EQ(hosts.size(), before + all_faults().size());
    EXPECT_EQ(host_called(hosts, "FAULT-DROP").fault->fault->name, "drop");
    EXPECT_EQ(hosts.back().address, "127.0.0." + std::to_string(hosts.size() + 10));
    EXPECT_THAT(fault_list(), HasSubstr("\ndrop:2                 drops the connection"));
}

}  // namespace
}  // namespace tessarine::sample
