#include "core/settings_store.h"

#include <gtest/gtest.h>

#include "core/scramble.h"
#include "fakes/bench.h"
#include "fakes/drawn.h"

namespace tessarine {
namespace {

using fakes::Bench;
using fakes::drawn;

TEST(SettingsStore, EmptyStoreGivesTheDefaults) {
    Bench bench;
    auto& form = bench.console.Form3;
    EXPECT_EQ(form->txtLogPath.text, "/app\\");
    EXPECT_EQ(form->txtArchivePath.text, "/app\\");
    EXPECT_TRUE(form->optOverwrite.value);
    EXPECT_EQ(form->txtHour.text + ":" + form->txtMin.text + " " + form->txtretlog.text, "00:00 ");
    EXPECT_EQ(form->TxtUsername.text + form->txtHosts.text + form->txtRecipient.text, "");
    EXPECT_EQ(form->Check1.value + form->Check6.value + form->chkEnableschedule.value, 0);
    EXPECT_EQ(drawn(bench, "shogrid highlightpatt hideignore"), R"(
shogrid:
highlightpatt:
hideignore:
)");
}

// KEEP(absent-password-reads-scrambled)
TEST(SettingsStore, AbsentPasswordIsNineScrambledCharacters) {
    Bench bench;
    EXPECT_EQ(bench.console.Form3->TxtPassword.text.text(), Scramble("Not Found", kScrambleKey));
    bench.console.Form3.unload();
    bench.settings.set("altpass", "");
    EXPECT_EQ(bench.console.Form3->TxtPassword.text.text(), "");
}

TEST(SettingsStore, StoredValuesReachTheirControls) {
    Bench bench;
    const std::pair<const char*, std::string> values[] = {
        {"LogPath", "/logs\\"},
        {"ArcPath", "/arc"},
        {"AuditOpt", "move"},
        {"usealtcred", "true"},
        {"altuser", "LAB\\anna"},
        {"mailto", "a@b"},
        {"mailfrom", "c@d"},
        {"mailsmtp", "mail"},
        {"autoauditat", "7:5"},
        {"autoretlogsolderthan", "12"},
        {"autosendmail", "true"},
        {"autohostlist", "/h.txt"},
        {"enscheaudit", "true"},
        {"showgrid", "true"},
        {"highpat", "true"},
        {"hideignore", "true"},
        {"altpass", Scramble(std::string("p\0w", 3), kScrambleKey)}};
    for (const auto& [name, text] : values) bench.settings.set(name, text);
    LoadSettings(bench.console);

    SettingsForm& form = bench.console.Form3.get();
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
    EXPECT_TRUE(bench.console.Form1.SecurityList.grid_lines);
    EXPECT_TRUE(bench.console.Form1.ListView1.grid_lines);
    EXPECT_FALSE(bench.console.Form1.ListView2.grid_lines);
    EXPECT_EQ(drawn(bench, "shogrid highlightpatt hideignore"), R"(
shogrid: checked
highlightpatt: checked
hideignore: checked
)");
}

TEST(SettingsStore, WordsAreTakenExactly) {
    Bench bench;
    bench.settings.set("AuditOpt", "Move");
    bench.settings.set("enscheaudit", "TRUE");
    bench.settings.set("autoauditat", "8");
    EXPECT_TRUE(bench.console.Form3->optOverwrite.value);
    EXPECT_EQ(bench.console.Form3->chkEnableschedule.value, 0);
    EXPECT_EQ(bench.console.Form3->txtHour.text, "8");
    EXPECT_EQ(bench.console.Form3->txtMin.text, "");
}

TEST(SettingsStore, UnsavedChangesEndWithTheForm) {
    Bench bench;
    bench.console.Form3->txtLogPath.text = "/elsewhere";
    EXPECT_EQ(bench.console.Form3->txtLogPath.text, "/elsewhere");
    bench.console.Form3.unload();
    EXPECT_EQ(bench.console.Form3->txtLogPath.text, "/app\\");
}

// KEEP(number-values-read-as-three-digits)
TEST(SettingsStore, ReadsEveryTypeAsText) {
    Bench bench;
    const auto read = [&](const StoredValue& value) {
        bench.settings.put("x", value);
        return ReadValue(bench.console, "X");
    };
    EXPECT_EQ(ReadValue(bench.console, "x"), "Not Found");
    EXPECT_EQ(read({ValueType::Number, {"\x07\0\0\0", 4}}), "007");
    EXPECT_EQ(read({ValueType::Number, {"\xD2\x04\0\0", 4}}), "123");
    EXPECT_EQ(read({ValueType::Binary, "\x0A\xFF"}), "0AFF");
    EXPECT_EQ(read({ValueType::Text, ""}), "") << "a value without its zero";
    EXPECT_EQ(read({ValueType::Text, std::string(2047, 'x') + '\0'}), std::string(2047, 'x'));
    EXPECT_EQ(read({ValueType::Text, std::string(2048, 'x') + '\0'}), "Not Found");
}

TEST(SettingsStore, WritesWhatItReadsAndKeepsQuietWhenRefused) {
    Bench bench;
    const std::string text("a\0b\xE4", 4);
    WriteValue(bench.console, "LogPath", ValueType::Text, text);
    EXPECT_EQ(ReadValue(bench.console, "logpath"), text);
    WriteValue(bench.console, "n", ValueType::Number, "65");
    EXPECT_EQ(ReadValue(bench.console, "n"), "065");
    bench.settings.refuses_writes = true;
    EXPECT_NO_THROW(WriteValue(bench.console, "LogPath", ValueType::Text, "new"));
    EXPECT_EQ(ReadValue(bench.console, "LogPath"), text);
}

}  // namespace
}  // namespace tessarine
