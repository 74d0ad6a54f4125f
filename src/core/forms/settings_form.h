// Form3, the settings dialog. Its controls are the settings in force, saved or not.
#pragma once

#include <array>

#include "core/controls.h"
#include "core/form.h"
#include "core/status_bar.h"
#include "core/tab_strip.h"

namespace tessarine {

struct SettingsForm : FormBase {
    static constexpr FormId kId{"Form3"};

    /// `secret_memory` is for the password.
    explicit SettingsForm(std::pmr::memory_resource* secret_memory)
        : TxtPassword{SecretText(secret_memory)} {
        caption = "Settings";
    }

    TabStrip TabStrip1{.tabs = {{"Audit Settings"},
                                {"Alternate Credentials"},
                                {"Scheduled Audits"},
                                {"Mail Settings"}}};
    /// The pages of TabStrip1, the first one in sight.
    std::array<Frame, 4> SetFrame{{{"Audit Default Settings"},
                                   {"Alternate Credentials", false},
                                   {"Scheduled Audit", false},
                                   {"Mail Settings", false}}};
    int settings_tab = 1;  ///< tab that shows
    StatusBar st1{1};

    // Audit default settings.
    Label Label9{" Download the logs to the directory [program path\\data]"};
    TextBox txtLogPath{.tool_tip = kEmptiedByCancel};
    CommandButton cmdLogPathBrowse{"...", "Choose the folder of the logs"};
    OptionButton optAppend{"Append new downloads to downloaded logs"};
    OptionButton optOverwrite{"Overwrite older downloded event logs", true};  // sic
    OptionButton optMove{"Move old event logs to archive folder"};
    Label Label12{" Archive folder (for moving older event logs)[program path\\archive]"};
    TextBox txtArchivePath{.tool_tip = kEmptiedByCancel};
    CommandButton cmdArchiveBrowse{"...", "Choose the archive folder"};
    Label Label13{"(These settings apply for scheduled audits also)"};
    CommandButton cmdAuditSave{"&Save", kSavesThisPage};

    // Alternate credentials; the password in the clear.
    CheckBox Check1{"Use Alternate Credentials"};
    TextBox TxtUsername;
    SecretBox TxtPassword;
    Label Label14{"<domainname>\\<username>"};
    CommandButton Command2{"&Save", kSavesThisPage};

    // Scheduled audit.
    CheckBox chkEnableschedule{"Enable scheduled event audit",
                               "The console has to be running at that time"};
    Label Label3{"Run Event Audits Everyday At"};
    TextBox txtHour{.text = "00", .tool_tip = kTwoDigits};
    UpDown UpDown1{-1, 25};
    TextBox txtMin{.text = "00", .tool_tip = kTwoDigits};
    UpDown UpDown3{-1, 61};
    Label Label4{"hours (HH:MM)"};
    Label Label10{"Retreive Event Logs From"};  // sic
    TextBox txtretlog{
        .text = "0",
        .tool_tip =
            "The days never reach back into the month before: a number that would means "
            "today alone"};
    UpDown UpDown2{0, 20};
    Label Label11{"days older than current date"};
    Label Label8{"Use Host Names Listed in :"};
    TextBox txtHosts{
        .tool_tip =
            "Without this file a run doesn't take place, and none does any more until the "
            "console is started again"};
    CommandButton Command4{"Browse", "A cancelled choice empties the field"};
    CheckBox Check6{
        "Send Email Alert On Alert Pattern Match",
        "The mail goes out after every run: its subject tells whether an event matched"};
    CommandButton Command7{"&Save", kSavesThisPage};

    // Mail.
    TextBox txtRecipient{.tool_tip = "Send the mails to..."};
    TextBox txtSmtpServer{.tool_tip = "Mail server address"};
    TextBox txtSender{.tool_tip = "Sender Email Address (must be a email address only)"};  // sic
    CommandButton Command3{"&Save", "Saves this page once all three fields are filled"};
    CommandButton Command1{"Test Settings", "Sends a short mail by what stands here"};
    ListBox lstStatus;

    /// Turns one of the three audit options on and the other two off.
    void choose(OptionButton& option) {
        for (OptionButton* each : {&optAppend, &optOverwrite, &optMove})
            each->value = each == &option;
    }

    /// Shows every control that the window has a widget for, under its name.
    template <class Visitor>
    void visit(Visitor&& see) {
        see("TabStrip1", TabStrip1);
        see("st1", st1);
        see("Label9", Label9);
        see("txtLogPath", txtLogPath);
        see("cmdLogPathBrowse", cmdLogPathBrowse);
        see("optAppend", optAppend);
        see("optOverwrite", optOverwrite);
        see("optMove", optMove);
        see("Label12", Label12);
        see("txtArchivePath", txtArchivePath);
        see("cmdArchiveBrowse", cmdArchiveBrowse);
        see("Label13", Label13);
        see("cmdAuditSave", cmdAuditSave);
        see("Check1", Check1);
        see("TxtUsername", TxtUsername);
        see("TxtPassword", TxtPassword);
        see("Label14", Label14);
        see("Command2", Command2);
        see("chkEnableschedule", chkEnableschedule);
        see("Label3", Label3);
        see("txtHour", txtHour);
        see("UpDown1", UpDown1);
        see("txtMin", txtMin);
        see("UpDown3", UpDown3);
        see("Label4", Label4);
        see("Label10", Label10);
        see("txtretlog", txtretlog);
        see("UpDown2", UpDown2);
        see("Label11", Label11);
        see("Label8", Label8);
        see("txtHosts", txtHosts);
        see("Command4", Command4);
        see("Check6", Check6);
        see("Command7", Command7);
        see("txtRecipient", txtRecipient);
        see("txtSmtpServer", txtSmtpServer);
        see("txtSender", txtSender);
        see("Command3", Command3);
        see("Command1", Command1);
        see("lstStatus", lstStatus);
    }

  private:
    static constexpr const char* kSavesThisPage =
        "Saves this page alone; what isn't saved is dropped when the dialog closes";
    static constexpr const char* kEmptiedByCancel =
        "A cancelled choice of a folder empties the field";
    static constexpr const char* kTwoDigits = "Two digits: 9:05 is never, 09:05 is every morning";
};

}  // namespace tessarine
