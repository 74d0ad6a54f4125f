// What an event source promises: of the fake that the logic's tests stand on, and of the console's
// own one with a sample host at its other end.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "contract/event_source_peers.h"
#include "core/runtime_error.h"

namespace tessarine::contract {
namespace {

using fakes::HostEvent;
using fakes::ScriptedHost;
using testing::ElementsAre;

const std::string kQuery = "SELECT * FROM Win32_NTLogEvent";

std::string words_of(const EventProperties::Property& property) {
    return property ? "\"" + std::string(*property) + "\"" : "null";
}

std::string words_of(const EventProperties& event) {
    std::string words;
    for (const auto& property : {event.LogFile, event.Type, event.TimeGenerated, event.SourceName,
                                 event.EventCode, event.ComputerName, event.Message, event.User})
        words += words_of(property) + " ";
    return words;
}

// The description of the action's failure; empty when it does not fail.
template <typename Action>
std::string failure_of(Action action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), ErrorNumber::Failed);
        EXPECT_NE(error.description(), "");
        return error.description();
    }
    return "";
}

// The records that are left, and "failed" where the walk ends with a failure.
std::vector<std::string> walk(EventResult& result) {
    std::vector<std::string> records;
    const std::string failure = failure_of([&] {
        for (EventProperties event; result.next(event);) records.push_back(words_of(event));
    });
    if (!failure.empty()) records.emplace_back("failed");
    return records;
}

std::vector<HostEvent> numbered(int count, const std::string& message = "") {
    std::vector<HostEvent> events(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        events[static_cast<std::size_t>(i)].Message = std::to_string(i + 1) + message;
    return events;
}

template <typename Peer>
class EventSourceContract : public testing::Test {
  protected:
    Peer peer_;
};

using Peers = testing::Types<FakePeer, WirePeer>;
TYPED_TEST_SUITE(EventSourceContract, Peers);

TYPED_TEST(EventSourceContract, GivesAllPropertiesInTheHostsOrder) {
    ScriptedHost host;
    host.records = {{.LogFile = "Security",
                     .Type = "\xDC"
                             "berwachung erfolgreich",
                     .TimeGenerated = "20240229235959.000001+000",
                     .SourceName = "A|B~C <&> \"D\"",
                     .EventCode = "4294967295",
                     .ComputerName = "pc1.sample.example",
                     .Message = "One\r\nTwo\nThree\tFour \x80  ",
                     .User = "SAMPLE\\\xE4\xF6\xFC"},
                    {.LogFile = "",
                     .Type = "",
                     .TimeGenerated = "16010101000000.000000+000",
                     .SourceName = "",
                     .EventCode = "0",
                     .ComputerName = "",
                     .Message = std::nullopt,
                     .User = std::nullopt}};
    const auto service = this->peer_.connect(host);
    EXPECT_THAT(walk(*service->exec_query(kQuery)),
                ElementsAre("\"Security\" \"\xDC"
                            "berwachung erfolgreich\" \"20240229235959.000001+000\" "
                            "\"A|B~C <&> \"D\"\" \"4294967295\" \"pc1.sample.example\" "
                            "\"One\r\nTwo\nThree\tFour \x80  \" \"SAMPLE\\\xE4\xF6\xFC\" ",
                            "\"\" \"\" \"16010101000000.000000+000\" \"\" \"0\" \"\" null null "));
}

TYPED_TEST(EventSourceContract, GivesTheSameRecordsInEveryWalk) {
    ScriptedHost host;
    host.records = numbered(200, std::string(2000, 'x'));
    const auto service = this->peer_.connect(host);
    const auto result = service->exec_query(kQuery);
    const std::vector<std::string> first = walk(*result);
    ASSERT_EQ(first.size(), 200u);
    EventProperties event;
    EXPECT_FALSE(result->next(event)) << "the end stays the end";
    result->start_over();
    EXPECT_EQ(walk(*result), first);
    EXPECT_FALSE(result->next(event));
}

TYPED_TEST(EventSourceContract, StartsOverInTheMiddleOfAWalk) {
    ScriptedHost host;
    host.records = numbered(150, std::string(2000, 'x'));
    const auto service = this->peer_.connect(host);
    const auto result = service->exec_query(kQuery);
    result->start_over();
    EventProperties event;
    for (int i = 0; i < 100; ++i) ASSERT_TRUE(result->next(event));
    for (const int taken : {1, 149, 150}) {
        result->start_over();
        for (int i = 1; i <= taken; ++i) {
            ASSERT_TRUE(result->next(event));
            ASSERT_EQ(event.Message->substr(0, event.Message->find('x')), std::to_string(i));
        }
    }
    EXPECT_FALSE(result->next(event));
}

TYPED_TEST(EventSourceContract, LeavesAnEventAloneUntilTheNextCallOnItsResult) {
    ScriptedHost host;
    host.records = numbered(3);
    const auto service = this->peer_.connect(host);
    const auto result = service->exec_query(kQuery);
    EventProperties event;
    ASSERT_TRUE(result->next(event));
    ASSERT_TRUE(result->next(event));
    const auto other = service->exec_query(kQuery);
    EXPECT_EQ(walk(*other).size(), 3u);
    EXPECT_EQ(event.Message, "2");
    EXPECT_EQ(event.User, std::nullopt);
    ASSERT_TRUE(result->next(event));
    EXPECT_EQ(event.Message, "3");
}

TYPED_TEST(EventSourceContract, MayHaveNoRecords) {
    const auto service = this->peer_.connect({});
    const auto result = service->exec_query(kQuery);
    EXPECT_THAT(walk(*result), ElementsAre());
    result->start_over();
    EXPECT_THAT(walk(*result), ElementsAre());
}

TYPED_TEST(EventSourceContract, RefusesLevelsThatItCantKeep) {
    const auto service = this->peer_.connect({});
    service->set_authentication_level(kAuthenticationPacketPrivacy);
    service->set_impersonation_level(kImpersonationImpersonate);
    EXPECT_NE(
        failure_of([&] { service->set_authentication_level(kAuthenticationPacketPrivacy + 1); }),
        "");
    EXPECT_NE(failure_of([&] { service->set_impersonation_level(kImpersonationImpersonate + 1); }),
              "");
}

TYPED_TEST(EventSourceContract, TakesTheFormsOfAUserName) {
    for (const char* user : {"SAMPLE\\auditor", ".\\auditor", "auditor"})
        EXPECT_EQ(failure_of([&] { this->peer_.connect({}, user); }), "") << user;
}

TYPED_TEST(EventSourceContract, SaysWhyThereIsNoConnection) {
    EXPECT_NE(failure_of([&] { this->peer_.connect_to_nobody(); }), "");
    const std::string refused = failure_of([&] { this->peer_.connect_with_a_wrong_password(); });
    EXPECT_THAT(refused, testing::HasSubstr("refused"));
    EXPECT_THAT(refused, testing::Not(testing::HasSubstr(kWrongPassword)));
}

TYPED_TEST(EventSourceContract, SaysWhyAQueryHasNoResult) {
    ScriptedHost host;
    host.query_error = "Access is denied.";
    const auto service = this->peer_.connect(host);
    for (int i = 0; i < 2; ++i)
        EXPECT_EQ(failure_of([&] { service->exec_query(kQuery); }), host.query_error);
}

TYPED_TEST(EventSourceContract, CantGoOnAfterAFailureInAWalk) {
    ScriptedHost host;
    host.records = numbered(3);
    host.failing_pass = 1;
    host.failing_record = 3;
    const auto service = this->peer_.connect(host);
    const auto result = service->exec_query(kQuery);
    const std::vector<std::string> records = walk(*result);
    ASSERT_GE(records.size(), 2u) << "an end is not to be taken for a failure";
    EXPECT_EQ(records.back(), "failed");
    EXPECT_THAT(walk(*result), ElementsAre("failed"));
    EXPECT_NE(failure_of([&] { result->start_over(); }), "");
}

}  // namespace
}  // namespace tessarine::contract
