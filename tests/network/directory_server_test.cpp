// The directory service against slapd: what it brings by pages, how fast, and who is refused.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <fstream>
#include <iostream>

#include "adapters/openldap/ldap_directory_service.h"
#include "core/runtime_error.h"
#include "fakes/rig.h"
#include "hosts/directory_dialog.h"
#include "network/running_directory.h"

namespace tessarine {
namespace {

using sample::DirectoryFolder;
using testing::HasSubstr;
using Kind = DirectoryFolder::Kind;

// Sends the console's paths to one server.
class AtServer final : public DirectoryService {
  public:
    explicit AtServer(const RunningDirectory& server) : server_(server) {}

    std::unique_ptr<DirectoryObject> bind(const std::string& path) override {
        return service_.bind(server_.path_of(path.substr(std::string("LDAP://").size())));
    }

  private:
    const RunningDirectory& server_;
    LdapDirectoryService service_{{}};
};

double megabytes_in_use() {
    std::ifstream file("/proc/self/statm");
    long all = 0;
    long resident = 0;
    file >> all >> resident;
    return static_cast<double>(resident * sysconf(_SC_PAGESIZE)) / 1e6;
}

// The console with its own routines, before a directory of computers.
class DirectoryAtWork : public testing::Test {
  protected:
    void SetUp() override {
        if (!sample::has_directory_program()) GTEST_SKIP() << "slapd is missing";
        setenv("KRB5CCNAME", "FILE:/nonexistent", 1);
    }

    std::string list(const RunningDirectory& server, const std::string& container) {
        AtServer service(server);
        rig.directory.real = &service;
        DirectoryForm& form = rig.console.frmADS.get();
        form.txtDC1.text = "example";
        form.txtDC2.text = "net";
        form.Combo1.text = container;
        form.optCont.value = true;
        rig.run(list_objects);
        return form.st1.text(1);
    }

    fakes::Rig rig;
};

// What Windows does as well: a thousand objects are the most that one answer has.
TEST_F(DirectoryAtWork, BringsByPagesWhatASizeLimitKeepsBack) {
    const RunningDirectory server(
        {{Kind::Container, "Computers", sample::numbered_names("PC", 2500)}});
    EXPECT_EQ(list(server, "Computers"), "2500 objects found");
    rig.run(add_listed_objects);
    EXPECT_EQ(rig.console.Form1.ListView1.count(), 2500);
    EXPECT_EQ(rig.console.Form1.ListView1.row(2500).text(), "PC2500");
}

TEST_F(DirectoryAtWork, TellsThatALimitIsReachedBehindWhatItBrought) {
    const RunningDirectory server(
        {{Kind::Container, "Computers", sample::numbered_names("PC", 900)}},
        "sizelimit size.soft=700 size.hard=700 size.prtotal=700\n");
    EXPECT_THAT(list(server, "Computers"), HasSubstr("its size limit is reached"));
    EXPECT_EQ(rig.console.frmADS->ListView1.count(), 700);
}

TEST_F(DirectoryAtWork, ListsTenThousandObjectsInSeconds) {
    const RunningDirectory server(
        {{Kind::Container, "Computers", sample::numbered_names("PC", 10'000)}});
    const double before = megabytes_in_use();
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(list(server, "Computers"), "10000 objects found");
    rig.run(add_listed_objects);
    const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - begin;
    EXPECT_LT(taken.count(), 10);
    std::cout << "10,000 objects listed and added in " << taken.count() << " s, "
              << megabytes_in_use() - before << " MB\n";
}

TEST_F(DirectoryAtWork, TellsWhoIsRefusedWhatHeNeeds) {
    const RunningDirectory server({{Kind::Container, "Computers", {"PC1"}}}, "require authc\n");
    const std::string words = list(server, "Computers");
    EXPECT_THAT(words, HasSubstr("the running user has no Kerberos ticket: run kinit"));
    EXPECT_THAT(words, HasSubstr("authentication required"));
}

TEST_F(DirectoryAtWork, TakesANameWithSignsBehindBackslashes) {
    const RunningDirectory server({{Kind::Container, "Smith\\, John", {"PC1"}}});
    EXPECT_EQ(list(server, "Smith\\, John"), "1 objects found");
    EXPECT_THAT(list(server, "Smith, John"), HasSubstr("Invalid DN syntax"));
}

}  // namespace
}  // namespace tessarine
