#include "chrome/settings_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/scramble.h"
#include "core/settings_store.h"
#include "fakes/drawn.h"
#include "fakes/rig.h"

namespace tessarine {
namespace {

using fakes::drawn;
using fakes::Rig;
using testing::ElementsAre;
using Routine = void (*)(Console&);

class SettingsDialogTest : public testing::Test {
  protected:
    // What the field shows after its arrows have stepped to `value`.
    std::string stepped(Routine step, UpDown SettingsForm::*arrows, TextBox SettingsForm::*field,
                        int value) {
        (form.*arrows).value = value;
        rig.run(step);
        return (form.*field).text + " " + std::to_string((form.*arrows).value);
    }

    // What a save writes, and its status text as the last line.
    std::vector<std::string> saved(Routine save) {
        rig.settings.written.clear();
        form.st1.set_text(1, "before");
        rig.run(save);
        std::vector<std::string> lines = rig.settings.written;
        lines.push_back(form.st1.text(1));
        return lines;
    }

    Rig rig;
    SettingsForm& form = rig.console.Form3.get();
};

// KEEP(clock-reaches-24-and-60)
TEST_F(SettingsDialogTest, ArrowsWrapAtTheEndsOfTheirClock) {
    const auto hour = [this](int value) {
        return stepped(step_hour, &SettingsForm::UpDown1, &SettingsForm::txtHour, value);
    };
    const auto minute = [this](int value) {
        return stepped(step_minute, &SettingsForm::UpDown3, &SettingsForm::txtMin, value);
    };
    EXPECT_THAT((std::vector{hour(25), hour(-1), hour(24), hour(0), hour(9), hour(10)}),
                ElementsAre("00 0", "24 24", "24 24", "00 0", "09 9", "10 10"));
    EXPECT_THAT((std::vector{minute(61), minute(-1), minute(60), minute(9)}),
                ElementsAre("00 0", "60 60", "60 60", "09 9"));
    EXPECT_EQ(stepped(step_days_back, &SettingsForm::UpDown2, &SettingsForm::txtretlog, 7), "7 7");
}

TEST_F(SettingsDialogTest, EachPageIsSavedInItsOrder) {
    form.txtLogPath.text = "/logs/";
    form.txtArchivePath.text = "";
    EXPECT_THAT(saved(save_audit_settings),
                ElementsAre("LogPath=/logs/", "ArcPath=", "AuditOpt=overwrite",
                            "Audit Settings Saved...."));
    form.choose(form.optAppend);
    EXPECT_EQ(saved(save_audit_settings)[2], "AuditOpt=append");
    form.choose(form.optMove);
    EXPECT_EQ(saved(save_audit_settings)[2], "AuditOpt=move");

    form.TxtUsername.text = "LAB\\anna";
    form.TxtPassword.text = "p|\xE4";
    EXPECT_THAT(saved(save_credentials),
                ElementsAre("altuser=LAB\\anna", "altpass=" + Scramble("p|\xE4", kScrambleKey),
                            "usealtcred=false", "Credential Settings Saved...."));
    form.txtHour.text = "9";
    form.txtretlog.text = "abc";
    form.txtHosts.text = "/h.txt";
    form.Check6.value = form.chkEnableschedule.value = 1;
    EXPECT_THAT(saved(save_schedule),
                ElementsAre("autoauditat=9:00", "autoretlogsolderthan=abc", "autosendmail=true",
                            "autohostlist=/h.txt", "enscheaudit=true",
                            "Schedule Audit Settings Saved...."));
}

// KEEP(mail-page-saves-only-when-full)
TEST_F(SettingsDialogTest, TheMailPageIsSavedOnlyWhenAllIsFilled) {
    for (TextBox* field : {&form.txtRecipient, &form.txtSender, &form.txtSmtpServer}) {
        form.txtRecipient.text = "a@b;c@d";
        form.txtSender.text = "e@f";
        form.txtSmtpServer.text = "mail";
        field->text = "";
        EXPECT_THAT(saved(save_mail_settings), ElementsAre("before"));
        field->text = "x";
    }
    EXPECT_THAT(saved(save_mail_settings), ElementsAre("mailto=a@b;c@d", "mailfrom=e@f",
                                                       "mailsmtp=x", "Email Settings Saved...."));
}

TEST_F(SettingsDialogTest, ASavedScheduleStartsAndStopsItsTimerAtOnce) {
    MainForm& main = rig.console.Form1;
    form.chkEnableschedule.value = 1;
    rig.run(save_schedule);
    EXPECT_TRUE(main.tmrAutoAudit.enabled);
    main.st1.set_text(5, "09:04 -  AutoAudit @: 09:05");
    rig.run(save_schedule);
    EXPECT_EQ(drawn(rig, "st1"), "\nst1: [][][][][09:04 -  AutoAudit @: 09:05]\n");
    form.chkEnableschedule.value = 0;
    rig.run(save_schedule);
    EXPECT_FALSE(main.tmrAutoAudit.enabled);
    EXPECT_EQ(drawn(rig, "st1"), "\nst1: [][][][][]\n");
}

TEST_F(SettingsDialogTest, AStoreThatRefusesIsNotMentionedAndKeepsWhatItHad) {
    rig.settings.set("altuser", "old");
    rig.settings.refuses_writes = true;
    form.TxtUsername.text = "new";
    EXPECT_THAT(saved(save_credentials), ElementsAre("Credential Settings Saved...."));
    rig.console.Form3.unload();
    EXPECT_EQ(rig.console.Form3->TxtUsername.text, "old");
}

// KEEP(cancelled-chooser-empties-the-field)
TEST_F(SettingsDialogTest, WhatIsChosenGoesIntoItsFieldAndACancelEmptiesIt) {
    rig.dialogs.choose_file_next("/my logs");
    rig.dialogs.choose_file_next("/arc/");
    rig.dialogs.choose_file_next("/hosts.txt");
    for (const Routine browse :
         {browse_for_log_path, browse_for_archive_path, browse_for_host_file})
        rig.run(browse);
    EXPECT_EQ(form.txtLogPath.text, "/my logs/");
    EXPECT_EQ(form.txtArchivePath.text, "/arc/");
    EXPECT_EQ(form.txtHosts.text, "/hosts.txt");
    EXPECT_EQ(rig.dialogs.choices[0].title, "folder: Select the Log File Destination");
    EXPECT_EQ(rig.dialogs.choices[1].title, "folder: Select the Archive Path");
    EXPECT_EQ(rig.dialogs.choices[2].filters, "Text File (*.txt)=*.txt;All Files (*.*)=*.*;");
    for (const Routine browse :
         {browse_for_log_path, browse_for_archive_path, browse_for_host_file}) {
        rig.dialogs.choose_file_next("");
        rig.run(browse);
    }
    EXPECT_EQ(form.txtLogPath.text + form.txtArchivePath.text + form.txtHosts.text, "");
}

TEST_F(SettingsDialogTest, ClosingDropsWhatIsNotSaved) {
    rig.windows.when_shown(SettingsForm::kId, [](Console& at) {
        at.Form3->txtHosts.text = "/unsaved.txt";
        at.Form3->TabStrip1.selected = 3;
        at.Form3.unload();
    });
    rig.run(show_settings);
    EXPECT_EQ(rig.console.Form3->txtHosts.text, "");
    EXPECT_EQ(rig.console.Form3->TabStrip1.selected, 1);
    EXPECT_TRUE(rig.console.Form3->SetFrame[0].visible);
}

}  // namespace
}  // namespace tessarine
