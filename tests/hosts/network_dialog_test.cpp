#include "hosts/network_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/events.h"
#include "fakes/drawn.h"
#include "fakes/rig.h"
#include "hosts/enumnet.h"
#include "hosts/mod_network.h"

namespace tessarine {
namespace {

using fakes::drawn;
using fakes::Rig;
using testing::ElementsAre;
using Message = fakes::ScriptedDialogs::Message;

std::vector<ServerInfo> named(const std::vector<std::string>& names) {
    std::vector<ServerInfo> servers;
    for (const std::string& name : names) servers.push_back({.name = name});
    return servers;
}

// A rig in which the user ticks some groups on Form7, presses its button and closes it.
struct NetworkRig : Rig {
    NetworkRig() : Rig(control_events()) {
        browse.network = {{"OFFICE", named({"Pc7", "FILESRV"})},
                          {"EMPTY", {}},
                          {"LAB", named({"pc9", "FILESRV"})}};
        list_hosts({"BEFORE"});
        console.Form1.st1.set_text(1, "before");
    }

    // What the form shows once it is up, and at the end.
    std::vector<std::string> tick_and_enumerate(const std::vector<int>& rows) {
        std::vector<std::string> shown;
        windows.when_shown(NetworkForm::kId, [&](Console& at) {
            shown.push_back(list_of(at));
            for (const int row : rows) at.Form7->ListView1.row(row).set_checked(true);
            shown.push_back(said_while_enumerating(at));
            EXPECT_EQ(at.mouse_pointer, kPointerDefault);
            at.Form7.unload();
        });
        run(show_network);
        return shown;
    }

    static std::string said_while_enumerating(Console& at) {
        const fakes::StatusHistory history(at.Form7->st1);
        enumerate_ticked_groups(at);
        return history.lines;
    }

    static std::string list_of(Console& at) {
        std::string names;
        for (int row = 1; row <= at.Form7->ListView1.count(); ++row)
            names += std::string(at.Form7->ListView1.row(row).text()) + ";";
        return names + at.Form7->st1.text(1);
    }
};

// KEEP(enumerated-hosts-stand-as-reported)
TEST(NetworkDialog, HostsOfTickedGroupsTakeThePlaceOfTheList) {
    NetworkRig rig;
    EXPECT_THAT(rig.tick_and_enumerate({2, 3}),
                ElementsAre("EMPTY;LAB;OFFICE;",
                            "1: Enumerating LAB\n1: \n1: Enumerating OFFICE\n1: \n"
                            "1: Enumeration complete..\n"));
    EXPECT_EQ(drawn(rig, "ListView1 st1"), R"(
ListView1:
  1|pc9|
  1|FILESRV|
  1|Pc7|
  1|FILESRV|
st1: [][][][4 hosts][]
)");
    EXPECT_FALSE(rig.console.Form7.loaded());
    EXPECT_THAT(rig.browse.asked, ElementsAre("groups", "servers of LAB", "servers of OFFICE"));
}

// KEEP(a-failing-group-is-passed-over)
TEST(NetworkDialog, GroupsWithoutHostsAddNone) {
    NetworkRig rig;
    rig.tick_and_enumerate({1, 2});
    EXPECT_EQ(drawn(rig, "ListView1"), "\nListView1:\n  1|pc9|\n  1|FILESRV|\n");
    EXPECT_TRUE(rig.dialogs.messages.empty());
    // The same when the network says that there are none.
    rig.browse.empty_is_success = true;
    rig.tick_and_enumerate({1});
    EXPECT_EQ(drawn(rig, "ListView1 st1"), "\nListView1:\nst1: [][][][0 hosts][]\n");
    EXPECT_TRUE(rig.dialogs.messages.empty());
}

// KEEP(enumerating-empties-the-host-list-first)
TEST(NetworkDialog, NothingTickedEmptiesTheList) {
    NetworkRig rig;
    EXPECT_EQ(rig.tick_and_enumerate({}).back(), "1: Enumeration complete..\n");
    EXPECT_EQ(drawn(rig, "ListView1 st1"), "\nListView1:\nst1: [][][][0 hosts][]\n");
}

TEST(NetworkDialog, AnEmptyNetworkIsAFailureInWords) {
    NetworkRig rig;
    rig.browse.network.clear();
    EXPECT_THAT(rig.tick_and_enumerate({}), ElementsAre("", "1: list empty...\n"));
    EXPECT_THAT(
        rig.dialogs.messages,
        ElementsAre(Message{"Error: Nobody has answered. Please retry..", MessageStyle::Critical}));
    // The host list stays as it was.
    EXPECT_EQ(drawn(rig, "ListView1 st1"), "\nListView1:\n  1|BEFORE|-\nst1: [before][][][][]\n");
}

// KEEP(enumeration-error-is-cleared)
TEST(NetworkDialog, OpeningPaintsBeforeItAsks) {
    NetworkRig rig;
    rig.browse.network.clear();
    const fakes::StatusHistory history(rig.console.Form7->st1);
    rig.windows.when_events_pass([&](Console& at) {
        EXPECT_EQ(at.mouse_pointer, kPointerHourglass);
        EXPECT_TRUE(rig.browse.asked.empty());
    });
    rig.run(activate_network);
    EXPECT_EQ(rig.windows.yields, 1);
    EXPECT_EQ(rig.console.mouse_pointer, kPointerDefault);
    EXPECT_EQ(history.lines, "1: Enumerating Workgroup..\n1: Enumeration error..\n1: \n");
}

TEST(NetworkDialog, EventsPassAfterEachName) {
    NetworkRig rig;
    rig.run([](Console& at) { CreateHostList(at, "OFFICE"); });
    EXPECT_EQ(rig.windows.yields, 2);
    // Added to what is there: only the button empties the list.
    EXPECT_EQ(rig.console.Form1.ListView1.count(), 3);
}

TEST(NetworkDialog, ClosingItWhileItIsFilledLeavesNothingBehind) {
    NetworkRig rig;
    int yields = 0;
    rig.windows.at_each_yield([&](Console& at) {
        if (++yields == 2) at.Form7.unload();
    });
    rig.run(show_network);
    EXPECT_FALSE(rig.console.Form7.loaded());
    EXPECT_FALSE(rig.program.ended);

    // The same between two groups.
    yields = 0;
    rig.windows.at_each_yield([&](Console& at) {
        if (++yields == 5) at.Form7.unload();
    });
    rig.windows.when_shown(NetworkForm::kId, [](Console& at) {
        for (const int row : {2, 3}) at.Form7->ListView1.row(row).set_checked(true);
        enumerate_ticked_groups(at);
    });
    rig.run(show_network);
    EXPECT_EQ(drawn(rig, "ListView1"), "\nListView1:\n  1|pc9|\n  1|FILESRV|\n");
    EXPECT_FALSE(rig.console.Form7.loaded());
    EXPECT_FALSE(rig.program.ended);
}

// More than their loops can count.
TEST(NetworkDialog, MoreNamesThanALoopCountsAreAnError) {
    NetworkRig rig;
    std::vector<std::string> names(40000, "PC");
    rig.browse.network = {{"HUGE", named(names)}};
    rig.run([](Console& at) { CreateHostList(at, "huge"); });
    EXPECT_THAT(rig.dialogs.messages,
                ElementsAre(Message{"6 - Overflow", MessageStyle::Exclamation}));
    EXPECT_EQ(rig.console.Form1.ListView1.count(), 1);
}

TEST(Enumnet, AnArrayHasAnEmptyElementBehindTheLast) {
    NetworkRig rig;
    const ServerNames names = GetServerNames(rig.console, "LAB", kServerTypeAll);
    EXPECT_EQ(names.upper_bound(), 2);
    EXPECT_EQ(names[1], "FILESRV");
    rig.browse.failure.words.clear();
    try {
        GetServerNames(rig.console, "none", kServerTypeAll).upper_bound();
        ADD_FAILURE() << "an array without elements has an upper bound";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.number(), ErrorNumber::SubscriptOutOfRange);
        EXPECT_EQ(error.description(), "Subscript out of range");
    }
}

// KEEP(net-error-1326-is-german)
TEST(ModNetwork, ErrorsInWords) {
    Rig rig;
    const std::pair<std::uint32_t, const char*> cases[] = {
        {5, "Access Denied!"},
        {1326, " Sie besitzen nicht die Berechtigungen daf\xFCr"},
        {1722, "Server not accessible!"},
        {6118, "Error Nr. (6118) !"},
        {0xFFFFFFFF, "Error Nr. (4294967295) !"}};
    for (const auto& [code, words] : cases) {
        EXPECT_EQ(NetErrorText(rig.console, code, Quiet::Yes), words);
        EXPECT_EQ(rig.dialogs.beeps + static_cast<int>(rig.dialogs.messages.size()), 0);
        EXPECT_EQ(NetErrorText(rig.console, code), "");
        EXPECT_EQ(rig.dialogs.beeps, 1);
        EXPECT_THAT(rig.dialogs.messages,
                    ElementsAre(Message{words, MessageStyle::Critical, "Net Error"}));
        rig.dialogs.beeps = 0;
        rig.dialogs.messages.clear();
    }
}

TEST(ModNetwork, NamesOfServersGetBackslashes) {
    using std::string_literals::operator""s;
    EXPECT_EQ(ServerNameBuffer(""), "\0"s);
    EXPECT_EQ(ServerNameBuffer("PC7"), "\\\\PC7\0"s);
    EXPECT_EQ(ServerNameBuffer("\\\\PC7"), "\\\\PC7\0"s);
}

TEST(ModNetwork, TheOwnGroupReplacesTheHostList) {
    NetworkRig rig;
    rig.browse.own_group = "LAB";
    rig.run([](Console& at) { CreateHostList(at); });
    EXPECT_EQ(drawn(rig, "ListView1"), "\nListView1:\n  0|pc9|\n  0|FILESRV|\n");
    EXPECT_EQ(rig.console.Form1.mouse_pointer, kPointerDefault);

    rig.browse.own_group = "EMPTY";
    rig.browse.failure.error = kErrorAccessDenied;
    rig.run([](Console& at) { CreateHostList(at); });
    EXPECT_EQ(rig.console.Form1.ListView1.count(), 0);
    EXPECT_THAT(rig.dialogs.messages,
                ElementsAre(Message{"Access Denied!", MessageStyle::Critical, "Net Error"}));
    EXPECT_EQ(rig.dialogs.beeps, 1);
}

}  // namespace
}  // namespace tessarine
