// What a browse list promises: of the fake that the logic's tests stand on, and of the console's
// own one with the sample hosts at its other end.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "adapters/browse/network_browse_list.h"
#include "fakes/scripted_browse_list.h"
#include "sample_network/built_in_hosts.h"
#include "sample_network/wire/discovery_answerer.h"
#include "sample_network/wire/user_list.h"

namespace tessarine::contract {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Three hosts of the domain SAMPLE and one of the group WORKGROUP.
class FakeNetwork {
  public:
    FakeNetwork() {
        network_.network = {{"SAMPLE", {{.name = "BERLIN01"}, {.name = "FILESRV01"}}},
                            {"WORKGROUP", {{.name = "WORKSHOP01"}}}};
    }
    BrowseList& list() { return network_; }
    BrowseList& silent() { return silent_; }

  private:
    fakes::ScriptedBrowseList network_;
    fakes::ScriptedBrowseList silent_;
};

// Without the program for SMB 1, whose network can't be on loopback.
class SampleHosts {
  public:
    BrowseList& list() { return network_; }
    BrowseList& silent() { return silent_; }

  private:
    static BrowseOptions options(int port) {
        return {.program = "/bin/true", .discovery = {.address = "127.0.0.1", .port = port}};
    }

    sample::DiscoveryAnswerer answerer_{
        sample::only_hosts(sample::built_in_hosts({}, 20),
                           {"FILESRV01", "BERLIN01", "NOTEBOOK23", sample::kWorkgroupHost}),
        0, 0};
    NetworkBrowseList network_{options(answerer_.port())};
    NetworkBrowseList silent_{options(9)};
};

std::vector<std::string> names(const BrowseAnswer& answer) {
    EXPECT_EQ(answer.error, 0u) << answer.words;
    std::vector<std::string> result;
    for (const ServerInfo& entry : answer.entries) result.push_back(entry.name);
    return result;
}

void expect_failure(const BrowseAnswer& answer) {
    EXPECT_NE(answer.error, 0u);
    EXPECT_NE(answer.words, "");
    EXPECT_THAT(answer.entries, IsEmpty());
}

template <typename Network>
class BrowseListContract : public testing::Test {
  protected:
    Network network_;
};

using Networks = testing::Types<FakeNetwork, SampleHosts>;
TYPED_TEST_SUITE(BrowseListContract, Networks);

TYPED_TEST(BrowseListContract, GivesGroupsAndTheirServers) {
    BrowseList& list = this->network_.list();
    EXPECT_THAT(names(list.groups()), ElementsAre("SAMPLE", "WORKGROUP"));
    EXPECT_THAT(names(list.servers("SAMPLE")), ElementsAre("BERLIN01", "FILESRV01"));
    EXPECT_THAT(names(list.servers("workgroup")), ElementsAre("WORKSHOP01"));
    expect_failure(list.servers("ELSEWHERE"));
}

TYPED_TEST(BrowseListContract, ASilentNetworkIsAFailureInWords) {
    expect_failure(this->network_.silent().groups());
    expect_failure(this->network_.silent().servers("SAMPLE"));
}

}  // namespace
}  // namespace tessarine::contract
