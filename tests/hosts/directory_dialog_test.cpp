#include "hosts/directory_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "fakes/drawn.h"
#include "fakes/rig.h"

namespace tessarine {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* kTop = "LDAP:// DC=example, DC=net";

class Directory : public testing::Test {
  protected:
    Directory() {
        form().txtDC1.text = "example";
        form().txtDC2.text = "net";
        rig.directory.while_binding = [this] {
            EXPECT_EQ(rig.console.mouse_pointer, kPointerHourglass);
            EXPECT_EQ(status(), "Please wait...");
        };
    }

    DirectoryForm& form() { return rig.console.frmADS.get(); }
    fakes::ScriptedContainer& container(const char* path) { return rig.directory.containers[path]; }
    std::string status() { return form().st1.text(1); }

    // The names in the list of objects.
    std::vector<std::string> objects() {
        std::vector<std::string> names;
        for (int row = 1; row <= form().ListView1.count(); ++row)
            names.emplace_back(form().ListView1.row(row).text());
        return names;
    }

    void list(auto routine) {
        rig.run(routine);
        EXPECT_FALSE(rig.program.ended);
        EXPECT_EQ(rig.console.mouse_pointer, kPointerDefault);
    }

    fakes::Rig rig;
};

// KEEP(containers-pile-up)
TEST_F(Directory, ContainersAreAddedToThoseThatAreThere) {
    container(kTop).children = {{"Computers", ""}, {"", "Servers"}, {"", ""}, {"Both", "Unit"}};
    list(list_containers);
    EXPECT_THAT(rig.directory.paths, ElementsAre(kTop));
    EXPECT_THAT(form().Combo1.items, ElementsAre("Computers", "Servers", "Both"));
    EXPECT_EQ(status(), "");
    list(list_containers);
    EXPECT_THAT(form().Combo1.items,
                ElementsAre("Computers", "Servers", "Both", "Computers", "Servers", "Both"));
    EXPECT_EQ(form().Combo1.text, "");
}

TEST_F(Directory, AFailureIsToldAndLeavesTheNamesBeforeIt) {
    list(list_containers);
    EXPECT_EQ(status(), std::string("The directory has no ") + kTop);
    container(kTop) = {{{"Computers", ""}}, "Automation error 5: Automation error"};
    list(list_containers);
    EXPECT_THAT(form().Combo1.items, ElementsAre("Computers"));
    EXPECT_EQ(status(), "Error.. 5: Error..");
    form().Combo1.text = "Computers";
    form().optCont.value = true;
    container("LDAP://CN=Computers, DC=example, DC=net") = {{{"pc1", ""}}, "Automation error"};
    list(list_objects);
    EXPECT_THAT(objects(), ElementsAre("pc1"));
    EXPECT_EQ(status(), "Error..");
}

// KEEP(units-are-no-objects)
TEST_F(Directory, ObjectsOfTheSelectionAreListed) {
    form().Combo1.text = "Servers";
    form().ListView1.add_row("before", 0);
    list(list_objects);
    EXPECT_EQ(status(),
              "Please choose if this selection is either an OU or an Container in the realm");
    EXPECT_THAT(objects(), IsEmpty());
    EXPECT_THAT(rig.directory.paths, IsEmpty());

    container("LDAP://OU=Servers, DC=example, DC=net").children = {
        {"pc7", ""}, {"", "Inner"}, {"", ""}, {"pc8", "Unit"}};
    form().optOU.value = true;
    list(list_objects);
    EXPECT_THAT(objects(), ElementsAre("pc7", "pc8"));
    EXPECT_EQ(status(), "2 objects found");

    container("LDAP://CN=Servers, DC=example, DC=net");
    form().optOU.value = false;
    form().optCont.value = true;
    list(list_objects);
    EXPECT_THAT(objects(), IsEmpty());
    EXPECT_EQ(status(), "0 objects found");
}

// KEEP(directory-paths-are-joined)
TEST_F(Directory, PathsHaveTheFieldsAsTheyStand) {
    form().txtDC1.text = "corp";
    form().txtDC2.text = "example, DC=com";
    form().Combo1.text = "Smith\\, John";
    form().optOU.value = true;
    list(list_containers);
    list(list_objects);
    EXPECT_THAT(rig.directory.paths,
                ElementsAre("LDAP:// DC=corp, DC=example, DC=com",
                            "LDAP://OU=Smith\\, John, DC=corp, DC=example, DC=com"));
}

// KEEP(directory-adds-hosts-again)
TEST_F(Directory, ListedObjectsBecomeHostsAsOftenAsTheyAreAdded) {
    list(add_listed_objects);
    rig.list_hosts({"PC7"});
    rig.windows.when_shown(DirectoryForm::kId, [](Console& console) {
        for (const char* name : {"pc7", "", "b\xFCro"}) console.frmADS->ListView1.add_row(name, 0);
        add_listed_objects(console);
        EXPECT_TRUE(console.frmADS->visible);
        console.frmADS.unload();
    });
    rig.run(show_directory);
    EXPECT_EQ(drawn(rig, "ListView1 st1"), R"(
ListView1:
  1|PC7|-
  1|PC7|
  1|BÜRO|
st1: [][][][][]
)");
}

}  // namespace
}  // namespace tessarine
