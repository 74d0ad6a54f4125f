#include "adapters/wsman/soap/enumeration.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

#include "adapters/wsman/basics/limits.h"
#include "adapters/wsman/wsman_event_result.h"
#include "core/runtime_error.h"
#include "wsman_scripted_channel.h"

namespace tessarine {
namespace {

using testing::ElementsAre;

std::string item(const std::string& message) {
    return "<E><Message>" + message + "</Message></E>";
}

// The messages of a walk, and the words of the failure that ended it.
std::vector<std::string> walk(EventResult& result) {
    std::vector<std::string> messages;
    try {
        for (EventProperties event; result.next(event);)
            messages.emplace_back(event.Message.value_or(""));
    } catch (const RuntimeError& error) {
        messages.push_back("failed: " + error.description());
    }
    return messages;
}

std::vector<std::string> query(ScriptedChannel& channel,
                               const std::string& wql = "SELECT * FROM Win32_NTLogEvent") {
    const SoapRequests requests("http://host:5985/wsman", "root\\cimv2", std::chrono::seconds(60));
    try {
        WsmanEventResult result(channel, requests, HostClock(), wql, "");
        return walk(result);
    } catch (const RuntimeError& error) {
        return {"refused: " + error.description()};
    }
}

TEST(Enumeration, PullsWithTheLatestContextToTheEnd) {
    ScriptedChannel channel({first_answer("A"), answer("B", item("1") + item("2")), answer("C", ""),
                             answer("D", item("3"), kEnd)});
    EXPECT_THAT(query(channel), ElementsAre("1", "2", "3"));
    EXPECT_THAT(channel.calls, ElementsAre("Enumerate", "Pull A", "Pull B", "Pull C"));
}

TEST(Enumeration, EndsWithoutAContextToo) {
    ScriptedChannel at_once({"<n:EnumerateResponse/>"});
    EXPECT_THAT(query(at_once), ElementsAre());
    ScriptedChannel empty({first_answer("A"), "<n:PullResponse/>"});
    EXPECT_THAT(query(empty), ElementsAre());
    EXPECT_THAT(empty.calls, ElementsAre("Enumerate", "Pull A"));
}

TEST(Enumeration, GivesAContextBackAsItCame) {
    ScriptedChannel channel({first_answer("&lt;A&amp;&#13;\nB\"&gt;"), answer("", "")});
    query(channel);
    EXPECT_THAT(channel.calls, ElementsAre("Enumerate", "Pull <A&\r\nB\">"));
}

TEST(Enumeration, SendsTheQueryAsItIs) {
    ScriptedChannel channel({"<n:EnumerateResponse/>"});
    const std::string wql = "Select * Where TimeWritten >= '1' and A < '\xFC & \"x\"'";
    query(channel, wql);
    EXPECT_THAT(channel.filters,
                ElementsAre("Select * Where TimeWritten >= '1' and A < '\xC3\xBC & \"x\"'"));
}

TEST(Enumeration, MayTimeOutOnceInARow) {
    const std::string timed_out = fault(kFaultTimedOut, "Timed out.");
    const std::string forgotten = fault(kFaultInvalidContext, "No such context.");
    ScriptedChannel patient({first_answer("A"), timed_out, answer("A", item("1")), timed_out,
                             answer("A", item("2"), kEnd)});
    EXPECT_THAT(query(patient), ElementsAre("1", "2"));
    ScriptedChannel twice({first_answer("A"), timed_out, fault(kFaultTimedOut, "Again.")});
    EXPECT_THAT(query(twice), ElementsAre("failed: Again."));
    ScriptedChannel gone({first_answer("A"), timed_out, forgotten});
    EXPECT_THAT(query(gone), ElementsAre("failed: Timed out."));
    EXPECT_THAT(gone.calls, ElementsAre("Enumerate", "Pull A", "Pull A", "Release A"));
}

TEST(Enumeration, FailsInTheHostsWordsAndGivesItselfBack) {
    ScriptedChannel refused({fault(5, "Access is denied.")});
    EXPECT_THAT(query(refused), ElementsAre("refused: Access is denied."));
    EXPECT_THAT(refused.calls, ElementsAre("Enumerate"));
    ScriptedChannel later({first_answer("A"), answer("B", item("1")), fault(14, "")});
    EXPECT_THAT(query(later), ElementsAre("1", "failed: The host answered with fault 14 "));
    EXPECT_THAT(later.calls, ElementsAre("Enumerate", "Pull A", "Pull B", "Release B"));
    ScriptedChannel malformed({first_answer("A"), "<unclosed>"});
    EXPECT_EQ(query(malformed).size(), 1u);
    EXPECT_EQ(malformed.calls.back(), "Release A");
    ScriptedChannel lost({first_answer("A"), ""});
    EXPECT_THAT(query(lost), ElementsAre("failed: lost"));
    EXPECT_THAT(lost.calls, ElementsAre("Enumerate", "Pull A"));
}

TEST(Enumeration, AsksNothingMoreWhenItCouldNotBegin) {
    ScriptedChannel channel({fault(5, "Access is denied.")});
    Enumeration enumeration(
        channel, SoapRequests("http://host:5985/wsman", "root\\cimv2", std::chrono::seconds(60)));
    ItemReader items({}, [](std::span<ItemValue>) {});
    EXPECT_THROW(enumeration.start("Q", items), RuntimeError);
    EXPECT_THROW(enumeration.pull(items), RuntimeError);
    EXPECT_THAT(channel.calls, ElementsAre("Enumerate"));
}

TEST(Enumeration, TakesNoAnswerToAnotherRequest) {
    ScriptedChannel channel({first_answer("A")});
    channel.other_id = "uuid:of-another";
    const char* const words = "refused: The host's answer belongs to another request";
    EXPECT_THAT(query(channel), ElementsAre(words));
    ScriptedChannel silent_about_it({first_answer("A")});
    silent_about_it.relates = false;
    EXPECT_THAT(query(silent_about_it), ElementsAre(words));
    // What the host could not read it can't relate to.
    ScriptedChannel fault_alone({fault(5, "Access is denied.")});
    fault_alone.relates = false;
    EXPECT_THAT(query(fault_alone), ElementsAre("refused: Access is denied."));
}

TEST(Enumeration, GivesUpAHostThatNeverEnds) {
    ScriptedChannel channel({first_answer("A"), answer("A", "")});
    EXPECT_THAT(query(channel), ElementsAre("failed: The host sends no more records"));
    EXPECT_EQ(channel.calls.size(), 1u + limits::kEmptyPulls + 1u + 1u);
}

TEST(EventResult, IsPulledOnceAndWalkedManyTimes) {
    ScriptedChannel channel(
        {first_answer("A"), answer("A", item("1")), answer("A", item("2")), answer("", item("3"))});
    const SoapRequests requests("http://host:5985/wsman", "root\\cimv2", std::chrono::seconds(60));
    WsmanEventResult result(channel, requests, HostClock(), "Q", "");
    EventProperties event;
    ASSERT_TRUE(result.next(event));
    result.start_over();
    EXPECT_EQ(channel.calls.size(), 4u) << "what is left is pulled before the second walk";
    EXPECT_THAT(walk(result), ElementsAre("1", "2", "3"));
    result.start_over();
    EXPECT_THAT(walk(result), ElementsAre("1", "2", "3"));
    EXPECT_EQ(channel.calls.size(), 4u);
}

TEST(EventResult, DoesNotWaitForeverForTheLastRecord) {
    ScriptedChannel channel({first_answer("A"), answer("A", item("1"))});
    const SoapRequests requests("http://host:5985/wsman", "root\\cimv2", std::chrono::seconds(60));
    {
        WsmanEventResult result(channel, requests, HostClock(), "Q", "",
                                {.time = std::chrono::seconds(-1)});
        EXPECT_THAT(walk(result), ElementsAre("failed: The host's records don't come to an end"));
    }
    EXPECT_THAT(channel.calls, ElementsAre("Enumerate", "Release A"));
}

TEST(EventResult, CantGoOnAfterAFailure) {
    ScriptedChannel channel(
        {first_answer("A"), answer("A", item("1")), fault(14, "Out of order.")});
    const SoapRequests requests("http://host:5985/wsman", "root\\cimv2", std::chrono::seconds(60));
    WsmanEventResult result(channel, requests, HostClock(), "Q", "");
    EXPECT_THAT(walk(result), ElementsAre("1", "failed: Out of order."));
    EXPECT_THAT(walk(result), ElementsAre("failed: The query has ended with an error"));
    EXPECT_THROW(result.start_over(), RuntimeError);
}

}  // namespace
}  // namespace tessarine
