// What a directory service promises: of the fake that the logic's tests stand on, and of the
// console's own one with a server at its other end.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

#include "adapters/openldap/ldap_directory_service.h"
#include "core/runtime_error.h"
#include "fakes/scripted_directory.h"
#include "network/running_directory.h"

namespace tessarine::contract {
namespace {

using sample::DirectoryFolder;
using testing::ElementsAre;

const std::vector<DirectoryFolder> kContent = {
    {DirectoryFolder::Kind::Container, "Computers", {"pc7", "b\xC3\xBCro"}},
    {DirectoryFolder::Kind::Unit, "Servers", {}},
};

class FakeDirectory {
  public:
    FakeDirectory() {
        service_.containers[path_of("DC=example, DC=net")].children = {{"Computers", ""},
                                                                       {"", "Servers"}};
        service_.containers[path_of("CN=Computers, DC=example, DC=net")].children = {
            {"pc7", ""}, {"b\xFCro", ""}};
        service_.containers[path_of("OU=Servers, DC=example, DC=net")];
    }
    DirectoryService& service() { return service_; }
    static std::string path_of(const std::string& name) { return "LDAP://" + name; }
    static bool is_there() { return true; }

  private:
    fakes::ScriptedDirectory service_;
};

class RealDirectory {
  public:
    DirectoryService& service() { return service_; }
    std::string path_of(const std::string& name) const { return server_.path_of(name); }
    static bool is_there() { return sample::has_directory_program(); }

  private:
    RunningDirectory server_{kContent};
    LdapDirectoryService service_{{}};
};

template <typename Peer>
class DirectoryServiceContract : public testing::Test {
  protected:
    void SetUp() override {
        if (!Peer::is_there()) GTEST_SKIP() << "slapd is missing";
        peer_ = std::make_unique<Peer>();
    }

    // The children as "CN|OU", or the words for why there are none.
    std::vector<std::string> children_of(const std::string& name) {
        std::vector<std::string> children;
        try {
            const auto object = peer_->service().bind(peer_->path_of(name));
            for (DirectoryChild child; object->next(child);)
                children.push_back(child.CN + "|" + child.OU);
            DirectoryChild none;
            EXPECT_FALSE(object->next(none)) << "after the end is the end";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number(), ErrorNumber::Failed);
            children.push_back(error.description());
        }
        return children;
    }

    std::unique_ptr<Peer> peer_;
};

using Peers = testing::Types<FakeDirectory, RealDirectory>;
TYPED_TEST_SUITE(DirectoryServiceContract, Peers);

TYPED_TEST(DirectoryServiceContract, GivesWhatIsRightBelowAnObject) {
    EXPECT_THAT(this->children_of("DC=example, DC=net"), ElementsAre("Computers|", "|Servers"));
    EXPECT_THAT(this->children_of("CN=Computers, DC=example, DC=net"),
                ElementsAre("pc7|", "b\xFCro|"));
    EXPECT_THAT(this->children_of("OU=Servers, DC=example, DC=net"), ElementsAre());
}

TYPED_TEST(DirectoryServiceContract, SaysThatThereIsNoSuchObject) {
    EXPECT_THAT(this->children_of("OU=Computers, DC=example, DC=net"),
                ElementsAre(testing::HasSubstr("The directory has no ")));
}

TYPED_TEST(DirectoryServiceContract, AnswersSeveralWalksAtATime) {
    auto& service = this->peer_->service();
    const auto first = service.bind(this->peer_->path_of("DC=example, DC=net"));
    DirectoryChild child;
    ASSERT_TRUE(first->next(child));
    const auto second = service.bind(this->peer_->path_of("CN=Computers, DC=example, DC=net"));
    ASSERT_TRUE(second->next(child));
    EXPECT_EQ(child.CN, "pc7");
    ASSERT_TRUE(first->next(child));
    EXPECT_EQ(child.OU, "Servers");
    EXPECT_EQ(child.CN, "") << "nothing is left of the child before";
}

}  // namespace
}  // namespace tessarine::contract
