#include "core/settings_store.h"

#include <gtest/gtest.h>

#include "core/scramble.h"
#include "fakes/drawn.h"
#include "fakes/rig.h"

namespace tessarine {
namespace {

using fakes::drawn;
using fakes::Rig;

TEST(SettingsStore, EmptyStoreGivesTheDefaults) {
    Rig rig;
    auto& form = rig.console.Form3;
    EXPECT_EQ(form->txtLogPath.text, "/app\\");
    EXPECT_EQ(form->txtArchivePath.text, "/app\\");
    EXPECT_TRUE(form->optOverwrite.value);
    EXPECT_EQ(form->txtHour.text + ":" + form->txtMin.text + " " + form->txtretlog.text, "00:00 ");
    EXPECT_EQ(form->TxtUsername.text + form->txtHosts.text + form->txtRecipient.text, "");
    EXPECT_EQ(form->Check1.value + form->Check6.value + form->chkEnableschedule.value, 0);
    EXPECT_EQ(drawn(rig, "shogrid highlightpatt hideignore"), R"(
shogrid:
highlightpatt:
hideignore:
)");
}

// KEEP(absent-password-reads-scrambled)
TEST(SettingsStore, AbsentPasswordIsNineScrambledCharacters) {
    Rig rig;
    EXPECT_EQ(rig.console.Form3->TxtPassword.text.text(), Scramble("Not Found", kScrambleKey));
    rig.console.Form3.unload();
    rig.settings.set("altpass", "");
    EXPECT_EQ(rig.console.Form3->TxtPassword.text.text(), "");
}

TEST(SettingsStore, StoredValuesReachTheirControls) {
    Rig rig;
    const std::pair<const char*, std::string> values[] = {
        {"LogPath", "/logs\\"},
        {"ArcPath", "/arc"},
        {"AuditOpt", "move"},
        {"usealtcred", "true"},
        {"altuser", "LAB\\anna"},
        {"mailto", "a@b"},
        {"mailfrom", "c@d"},
        {"mailsmtp", "mail"},
        {"autoauditat", "7:5:9"},
        {"autoretlogsolderthan", "12"},
        {"autosendmail", "true"},
        {"autohostlist", "/h.txt"},
        {"enscheaudit", "true"},
        {"showgrid", "true"},
        {"highpat", "true"},
        {"hideignore", "true"},
        {"altpass", Scramble(std::string("p\0w", 3), kScrambleKey)}};
    for (const auto& [name, text] : values) rig.settings.set(name, text);
    LoadSettings(rig.console);

    SettingsForm& form = rig.console.Form3.get();
    EXPECT_EQ(form.txtLogPath.text + " " + form.txtArchivePath.text, "/logs\\ /arc");
    EXPECT_TRUE(form.optMove.value);
    EXPECT_FALSE(form.optOverwrite.value) << "one of the three options is on";
    EXPECT_EQ(form.TxtUsername.text, "LAB\\anna");
    EXPECT_EQ(form.TxtPassword.text.text(), std::string("p\0w", 3));
    EXPECT_EQ(form.txtRecipient.text + form.txtSender.text + form.txtSmtpServer.text, "a@bc@dmail");
    EXPECT_EQ(form.txtHour.text + " " + form.txtMin.text, "7 5");
    EXPECT_EQ(form.UpDown1.value * 1000 + form.UpDown3.value, 7005);
    EXPECT_EQ(form.UpDown2.value, 12);
    EXPECT_EQ(form.txtHosts.text, "/h.txt");
    EXPECT_EQ(form.Check1.value + form.Check6.value + form.chkEnableschedule.value, 3);
    EXPECT_TRUE(rig.console.Form1.SecurityList.grid_lines);
    EXPECT_TRUE(rig.console.Form1.ListView1.grid_lines);
    EXPECT_FALSE(rig.console.Form1.ListView2.grid_lines);
    EXPECT_EQ(drawn(rig, "shogrid highlightpatt hideignore"), R"(
shogrid: checked
highlightpatt: checked
hideignore: checked
)");
}

TEST(SettingsStore, WordsAreTakenExactly) {
    Rig rig;
    rig.settings.set("AuditOpt", "Move");
    rig.settings.set("enscheaudit", "TRUE");
    rig.settings.set("autoauditat", "8");
    EXPECT_TRUE(rig.console.Form3->optOverwrite.value);
    EXPECT_EQ(rig.console.Form3->chkEnableschedule.value, 0);
    EXPECT_EQ(rig.console.Form3->txtHour.text, "8");
    EXPECT_EQ(rig.console.Form3->txtMin.text, "");
}

TEST(SettingsStore, UnsavedChangesEndWithTheForm) {
    Rig rig;
    rig.console.Form3->txtLogPath.text = "/elsewhere";
    EXPECT_EQ(rig.console.Form3->txtLogPath.text, "/elsewhere");
    rig.console.Form3.unload();
    EXPECT_EQ(rig.console.Form3->txtLogPath.text, "/app\\");
}

// KEEP(number-values-read-as-three-digits)
TEST(SettingsStore, ReadsEveryTypeAsText) {
    Rig rig;
    const auto read = [&](const StoredValue& value) {
        rig.settings.put("x", value);
        return ReadValue(rig.console, "X");
    };
    EXPECT_EQ(ReadValue(rig.console, "x"), "Not Found");
    EXPECT_EQ(read({ValueType::Number, {"\x07\0\0\0", 4}}), "007");
    EXPECT_EQ(read({ValueType::Number, {"\xD2\x04\0\0", 4}}), "123");
    EXPECT_EQ(read({ValueType::Binary, "\x0A\xFF"}), "0AFF");
    EXPECT_EQ(read({ValueType::Text, ""}), "") << "a value without its zero";
    EXPECT_EQ(read({ValueType::Text, std::string(2047, 'x') + '\0'}), std::string(2047, 'x'));
    EXPECT_EQ(read({ValueType::Text, std::string(2048, 'x') + '\0'}), "Not Found");
}

TEST(SettingsStore, WritesWhatItReadsAndKeepsQuietWhenRefused) {
    Rig rig;
    const std::string text("a\0b\xE4", 4);
    WriteValue(rig.console, "LogPath", ValueType::Text, text);
    EXPECT_EQ(ReadValue(rig.console, "logpath"), text);
    WriteValue(rig.console, "n", ValueType::Number, "65");
    EXPECT_EQ(ReadValue(rig.console, "n"), "065");
    rig.settings.refuses_writes = true;
    EXPECT_NO_THROW(WriteValue(rig.console, "LogPath", ValueType::Text, "new"));
    EXPECT_EQ(ReadValue(rig.console, "LogPath"), text);
}

}  // namespace
}  // namespace tessarine
