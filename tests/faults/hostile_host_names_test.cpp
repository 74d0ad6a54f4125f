// Host names that would lead out of the store, forge lines, or mean something to somebody else.
#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "app/events.h"
#include "audit/full_audit.h"
#include "core/text.h"
#include "fakes/rig.h"
#include "hosts/add_host_dialog.h"
#include "hosts/directory_dialog.h"
#include "hosts/host_list.h"
#include "hosts/host_list_files.h"
#include "hosts/network_dialog.h"
#include "schedule/scheduled_audit.h"

namespace tessarine {
namespace {

using fakes::Rig;

std::vector<std::string> hostile_names() {
    std::vector<std::string> names = {
        // Ways out of the folder.
        ".", "..", "...", "....//", "../x", "..\\x", "/etc/x", "\\\\..\\x", "\\\\../x", "//..",
        "a/b", "a\\b", "a/../../b", "a\\..\\..\\b", "/", "\\", "\\\\", "\\\\\\\\srv", "//srv/share",
        "\\\\?\\C:\\x", "C:\\x", "C:", "a:b", "./a", "a/.", "a/", "a\\",
        // Lines and controls.
        "a\nb", "a\r\nb Audit ok", "a\rb", "\n", "\t", "a\tb", "\x1B[2J", "a\x08", "\x7F", "a|b",
        // What shells, formats, pages and tables read.
        "~", "~root", "$HOME", "$(id)", "`id`", "; rm -rf x", "-rf", "%s%n", "%2e%2e%2f", "{0}",
        "<b>", "\"a\"", "'; DROP TABLE value; --", "*", "?", "nul", "con", "aux.log",
        // Names of our own files, blanks, other code pages.
        "_system.log", "a_system.log", ".hidden", " ", "  a  ", "a ", "\x81", "\xFF\xFE", "\xA0",
        "\xC4\xD6", "\xE2\x80\xAE"};
    names.push_back(std::string("a\0b", 3));
    for (const std::size_t length : {200, 201, 255, 300, 5000})
        names.push_back(std::string(length, 'n'));
    return names;
}

// What the names that lead out would lead to.
const std::vector<const char*> kVictims = {"/app/x_system.log", "/app/_system.log",
                                           "/app/Data/a/b_system.log", "/etc/x_system.log"};

// A console whose every host answers and has a record.
struct HostileNetwork : Rig {
    explicit HostileNetwork(const std::string& name) : Rig(control_events()) {
        const std::string upper = upper_text(name);
        std::vector<std::string> spellings = {upper, name, replace_text(name, "\\\\", ""),
                                              replace_text(upper, "\\\\", "")};
        std::istringstream lines(upper);
        for (std::string line; std::getline(lines, line);) spellings.push_back(line);
        for (const std::string& spelling : spellings) {
            probe.answers[spelling] = fakes::kConnects;
            network.hosts[spelling].records = {{}};
        }
        files.make_folders("/app/Logs");
        for (const char* victim : kVictims) files.put(victim, "kept");
    }

    void expect_all_in_the_store(const std::string& name) {
        EXPECT_FALSE(program.ended) << name;
        for (const char* victim : kVictims) EXPECT_EQ(files.bytes(victim), "kept") << name;
        std::istringstream paths(files.names());
        for (std::string path; std::getline(paths, path);) {
            if (path == "/hosts.txt" || std::count(kVictims.begin(), kVictims.end(), path) != 0)
                continue;
            EXPECT_TRUE(path.starts_with("/app/Data/") || path.starts_with("/app/Logs/")) << path;
            EXPECT_EQ(std::count(path.begin(), path.end(), '/'), 3) << path;
            EXPECT_EQ(without_controls(path), path);
        }
        // One line an audit, of which none says what a name would have it say.
        const std::string log = "/app/Logs/30-11-2004.log";
        if (!files.file_exists(log)) return;
        std::istringstream lines(files.bytes(log));
        for (std::string line; std::getline(lines, line);)
            EXPECT_TRUE(line.starts_with("11/30/2004 11:59:59 PM ")) << line;
    }
};

// What comes after a host is in the list.
void audit_and_delete(HostileNetwork& network, const std::string& name) {
    network.run(runFullauditAllhost);
    network.expect_all_in_the_store(name);
    Rig::select(network.console.Form1.ListView1, {1});
    network.dialogs.answer_next(MessageAnswer::Yes);
    network.run(dellogs);
    network.expect_all_in_the_store(name);
}

TEST(HostileHostNames, MakeNoFileOutsideOfTheStoreWhicheverWayTheyCome) {
    for (const std::string& name : hostile_names()) {
        HostileNetwork typed(name);
        typed.console.Form6->AddHost.text = name;
        typed.run(add_typed_host);
        audit_and_delete(typed, name);

        HostileNetwork browsed(name);
        browsed.browse.network = {{name, {{.name = name}}}};
        browsed.run(CreatDomainList);
        browsed.console.Form7->ListView1.row(1).set_checked(true);
        browsed.run(enumerate_ticked_groups);
        EXPECT_EQ(browsed.console.Form1.ListView1.count(), 1);
        audit_and_delete(browsed, name);

        HostileNetwork looked_up(name);
        looked_up.directory.containers["LDAP://CN=, DC=, DC="].children = {{name, ""}};
        looked_up.console.frmADS->optCont.value = true;
        looked_up.run(list_objects);
        looked_up.run(add_listed_objects);
        audit_and_delete(looked_up, name);

        // A name with a line end is two in a file.
        HostileNetwork listed(name);
        listed.files.put("/hosts.txt", name + "\r\n");
        listed.dialogs.choose_file_next("/hosts.txt");
        listed.run(loadfrmlist);
        listed.run(runFullauditAllhost);
        listed.expect_all_in_the_store(name);

        HostileNetwork scheduled(name);
        scheduled.files.put("/hosts.txt", name + "\r\n");
        scheduled.console.Form3->txtHosts.text = "/hosts.txt";
        scheduled.run(AutoAudit);
        scheduled.expect_all_in_the_store(name);
    }
}

}  // namespace
}  // namespace tessarine
