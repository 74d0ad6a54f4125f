// The console before a domain's directory. It needs a domain, which network/directory_domain.sh
// makes: there DIRECTORY_DOMAIN is the one test that is to be run.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>

#include "adapters/openldap/ldap_directory_service.h"
#include "fakes/rig.h"
#include "hosts/directory_dialog.h"

namespace tessarine {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::IsSupersetOf;

class DirectoryDomain : public testing::Test {
  protected:
    void SetUp() override {
        const char* wanted = std::getenv("DIRECTORY_DOMAIN");
        const auto* test = testing::UnitTest::GetInstance()->current_test_info();
        if (wanted == nullptr || test->name() != std::string(wanted))
            GTEST_SKIP() << "there is no domain";
        rig.directory.real = &service;
        form().txtDC1.text = "example";
        form().txtDC2.text = "net";
    }

    DirectoryForm& form() { return rig.console.frmADS.get(); }

    std::string list(const char* name, OptionButton& kind) {
        form().optOU.value = form().optCont.value = false;
        kind.value = true;
        form().Combo1.text = name;
        rig.run(list_objects);
        return form().st1.text(1);
    }

    std::string words_for_top_level() {
        rig.run(list_containers);
        EXPECT_TRUE(form().Combo1.items.empty());
        return form().st1.text(1);
    }

    int ticks = 0;
    LdapDirectoryService service{{.while_waiting = [this] { ++ticks; }}};
    fakes::Rig rig;
};

TEST_F(DirectoryDomain, IsListedAndAdded) {
    rig.run(list_containers);
    EXPECT_EQ(form().st1.text(1), "");
    EXPECT_THAT(form().Combo1.items,
                IsSupersetOf({"Builtin", "Computers", "Domain Controllers", "Servers", "Users"}));
    EXPECT_EQ(list("Servers", form().optOU), "3 objects found");
    rig.run(add_listed_objects);
    EXPECT_EQ(list("Computers", form().optCont), "2500 objects found");
    rig.run(add_listed_objects);
    EXPECT_EQ(rig.console.Form1.ListView1.count(), 2503);
    EXPECT_EQ(rig.console.Form1.ListView1.row(2503).text().substr(0, 2), "PC");
    EXPECT_GT(ticks, 0);
    EXPECT_THAT(list("Servers", form().optCont), HasSubstr("The directory has no "));
    form().txtDC1.text = "elsewhere";
    rig.run(list_containers);
    EXPECT_THAT(form().st1.text(1), HasSubstr("_ldap._tcp.elsewhere.net"));
}

TEST_F(DirectoryDomain, IsNotReadWithoutATicket) {
    EXPECT_THAT(words_for_top_level(),
                HasSubstr("the running user has no Kerberos ticket: run kinit USER@EXAMPLE.NET"));
}

TEST_F(DirectoryDomain, IsNotReadWithAnExpiredTicket) {
    EXPECT_THAT(words_for_top_level(), HasSubstr("ticket has expired: run kinit USER@EXAMPLE.NET"));
}

TEST_F(DirectoryDomain, IsNotReadWithoutItsSeal) {
    EXPECT_THAT(words_for_top_level(),
                AllOf(HasSubstr("With a ticket of EXAMPLE.NET nothing is read without its seal"),
                      HasSubstr("the sign-in by Kerberos at example.net failed: ")));
}

}  // namespace
}  // namespace tessarine
