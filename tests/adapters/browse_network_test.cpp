// The network's groups and servers, from devices and programs that behave and from those that
// don't.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

#include "adapters/browse/browse_limits.h"
#include "adapters/browse/network_browse_list.h"
#include "adapters/browse_scripted_network.h"
#include "adapters/wsman_scripted_host.h"

namespace tessarine {
namespace {

using testing::HasSubstr;

std::string id_of(const std::string& message) {
    const std::size_t begin = message.find("<a:MessageID>") + 13;
    return message.substr(begin, message.find('<', begin) - begin);
}

std::string match(const std::string& id, const std::string& endpoint, const std::string& urls) {
    return R"(<e:Envelope xmlns:e="http://www.w3.org/2003/05/soap-envelope")"
           R"( xmlns:a="http://schemas.xmlsoap.org/ws/2004/08/addressing")"
           R"( xmlns:w="http://schemas.xmlsoap.org/ws/2005/04/discovery"><e:Header><a:RelatesTo>)" +
           id +
           "</a:RelatesTo></e:Header><e:Body><w:ProbeMatches><w:ProbeMatch><a:EndpointReference>"
           "<a:Address>" +
           endpoint + "</a:Address></a:EndpointReference><w:XAddrs>" + urls +
           "</w:XAddrs></w:ProbeMatch></w:ProbeMatches></e:Body></e:Envelope>";
}

std::string metadata(const std::string& computer) {
    return R"(<e:Envelope xmlns:e="http://www.w3.org/2003/05/soap-envelope")"
           R"( xmlns:m="http://schemas.xmlsoap.org/ws/2004/09/mex")"
           R"( xmlns:p="http://schemas.xmlsoap.org/ws/2006/02/devprof")"
           R"( xmlns:u="http://schemas.microsoft.com/windows/pub/2005/07"><e:Body><m:Metadata>)"
           "<m:MetadataSection><p:Relationship><p:Host><u:Computer>" +
           computer +
           "</u:Computer></p:Host></p:Relationship></m:MetadataSection></m:Metadata></e:Body>"
           "</e:Envelope>";
}

std::string http(const std::string& body, const std::string& status = "200 OK") {
    return "HTTP/1.1 " + status + "\r\nContent-Length: " + std::to_string(body.size()) +
           "\r\nConnection: close\r\n\r\n" + body;
}

std::string names(const BrowseAnswer& answer) {
    std::string text;
    for (const ServerInfo& entry : answer.entries) text += entry.name + " ";
    return text;
}

// The device answers with what leads to the host, and perhaps with more.
struct Search {
    explicit Search(ScriptedHost::Answer host_answer, Last last = Last::Closes)
        : host(std::move(host_answer), last) {}

    std::string url(const std::string& address = "127.0.0.1") const {
        return "http://" + address + ":" + std::to_string(host.address().port) + "/x";
    }

    BrowseOptions options() {
        return {.while_waiting = [this] { ++waits; },
                .program = program,
                .discovery = {.address = "127.0.0.1", .port = device.port()}};
    }

    int waits = 0;
    ScriptedHost host;
    std::string program = "/bin/true";
    std::function<std::vector<std::string>(const std::string& id)> answers =
        [this](const std::string& id) { return std::vector{match(id, "urn:1", url())}; };
    ScriptedDevice device{[this](const std::string& message) { return answers(id_of(message)); }};
};

ScriptedHost::Answer always(const std::string& answer) {
    return [answer](const std::string&) { return std::optional(answer); };
}

TEST(NetworkBrowseList, JoinsBothSources) {
    Search search(always(http(metadata("pc7/Workgroup:Office"))));
    const ScriptedProgram program(
        "if [ \"$1\" = groups ]; then\n"
        R"(printf 'own\0LAB\0\0\0entry\0OFFICE\0MASTER\0\0entry\0LAB\0\0\0error\0\0\0000\0')"
        "\nelse\n"
        R"(printf 'own\0LAB\0\0\0entry\0%s-SRV\0old\0\0error\0\0\0000\0' "$2")"
        "\nfi");
    search.program = program.path();
    NetworkBrowseList list(search.options());
    const BrowseAnswer groups = list.groups();
    EXPECT_EQ(names(groups), "LAB OFFICE ");
    EXPECT_EQ(groups.entries[1].comment, "MASTER");
    EXPECT_GT(search.waits, 5);
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(names(list.servers("office")), "office-SRV pc7 ");
    EXPECT_EQ(names(list.servers("")), "-SRV ");
    // The devices were not searched for once more.
    EXPECT_LT(std::chrono::steady_clock::now() - begin, browse_limits::kListening);
    EXPECT_EQ(search.host.connections(), 1);
}

// Each is one of the ways in which a device can fail to tell of itself.
TEST(NetworkBrowseList, PassesOverDevicesThatTellNothing) {
    const std::string large(browse_limits::kMetadata + 1, ' ');
    for (const std::string& answer :
         {http(metadata("pc7/Workgroup:Office"), "500 No"), http("no XML"),
          http(metadata("<u:x/>")), http(large + metadata("pc7/Workgroup:Office")),
          std::string("HTTP/1.1 302 Found\r\nLocation: http://127.0.0.1:1/\r\n\r\n")}) {
        Search search(always(answer));
        const BrowseAnswer groups = NetworkBrowseList(search.options()).groups();
        EXPECT_EQ(groups.error, kErrorNoBrowserServersFound);
        EXPECT_THAT(groups.words, HasSubstr("but none has told its group"));
    }
}

TEST(NetworkBrowseList, WaitsForNobodyLongerThanAFewSeconds) {
    for (const Last last : {Last::Trickles, Last::NeverStops}) {
        Search search([](const std::string&) { return std::nullopt; }, last);
        const ScriptedProgram program("exec sleep 100");
        search.program = program.path();
        const auto begin = std::chrono::steady_clock::now();
        EXPECT_NE(NetworkBrowseList(search.options()).groups().error, 0u);
        EXPECT_LT(std::chrono::steady_clock::now() - begin,
                  browse_limits::kWhole + std::chrono::seconds(2));
    }
}

TEST(NetworkBrowseList, TakesNoWordForOthers) {
    Search search(always(http(metadata("pc7/Workgroup:Office"))));
    search.answers = [&](const std::string& id) {
        return std::vector{match(id, "urn:1", search.url("localhost")),
                           match(id, "urn:2", search.url("127.0.0.2")),
                           match("urn:uuid:another", "urn:3", search.url()), std::string("no XML"),
                           std::string(60000, 'x')};
    };
    EXPECT_NE(NetworkBrowseList(search.options()).groups().error, 0u);
    EXPECT_EQ(search.host.connections(), 0);
}

// All with the address of one liar, so that few of them count.
TEST(NetworkBrowseList, TenThousandDevicesAreNoTrouble) {
    Search search(always(http(metadata("pc7/Workgroup:Office"))));
    search.answers = [&](const std::string& id) {
        std::vector<std::string> answers;
        for (int i = 0; i < 10000; ++i)
            answers.push_back(match(id, "urn:" + std::to_string(i), search.url()));
        return answers;
    };
    EXPECT_EQ(names(NetworkBrowseList(search.options()).groups()), "Office ");
    EXPECT_LE(search.host.connections(), static_cast<int>(browse_limits::kDevicesOfOneAddress));
}

TEST(NetworkBrowseList, AProgramThatMisbehavesIsDoneWithout) {
    for (const char* script : {"exec yes", "kill -9 $$", "exit 1", "printf 'entry\\0'"}) {
        Search search(always(http(metadata("pc7/Workgroup:Office"))));
        const ScriptedProgram program(script);
        search.program = program.path();
        EXPECT_EQ(names(NetworkBrowseList(search.options()).groups()), "Office ") << script;
    }
}

TEST(NetworkBrowseList, SilenceIsAFailureWithItsReason) {
    const struct {
        const char* script;
        std::uint32_t error;
        const char* reason;
    } cases[] = {
        {R"(printf 'error\0\0\0002\0')", kErrorNoBrowserServersFound, "a list"},
        {R"(printf 'error\0\0\00013\0')", kErrorAccessDenied, "(SMB 1: Permission denied)"},
        {R"(printf 'error\0\0\000111\0')", kErrorServerUnavailable, "(SMB 1: Connection refused)"},
    };
    for (const auto& each : cases) {
        Search search(always(""));
        search.answers = [](const std::string&) { return std::vector<std::string>(); };
        const ScriptedProgram program(each.script);
        search.program = program.path();
        const BrowseAnswer groups = NetworkBrowseList(search.options()).groups();
        EXPECT_EQ(groups.error, each.error);
        EXPECT_THAT(groups.words, HasSubstr("(WS-Discovery) has answered"));
        EXPECT_THAT(groups.words, testing::EndsWith(each.reason));
    }
    Search search(always(""));
    search.answers = [](const std::string&) { return std::vector<std::string>(); };
    search.program = "/nowhere/browse";
    EXPECT_THAT(NetworkBrowseList(search.options()).groups().words,
                HasSubstr("tessarine-browse is missing"));
}

}  // namespace
}  // namespace tessarine
