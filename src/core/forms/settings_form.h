// Form3, the settings dialog. Its controls are the settings in force, saved or not.
#pragma once

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
    StatusBar st1{1};

    // Audit default settings.
    Label Label9{" Download the logs to the directory [program path\\data]"};
    TextBox txtLogPath;
    OptionButton optAppend{"Append new downloads to downloaded logs"};
    OptionButton optOverwrite{"Overwrite older downloded event logs", true};  // sic
    OptionButton optMove{"Move old event logs to archive folder"};
    Label Label12{" Archive folder (for moving older event logs)[program path\\archive]"};
    TextBox txtArchivePath;

    // Alternate credentials; the password in the clear.
    CheckBox Check1{"Use Alternate Credentials"};
    TextBox TxtUsername;
    SecretBox TxtPassword;

    // Scheduled audit.
    CheckBox chkEnableschedule{"Enable scheduled event audit"};
    TextBox txtHour{"00"};
    TextBox txtMin{"00"};
    UpDown UpDown1{-1, 25};
    UpDown UpDown3{-1, 61};
    TextBox txtretlog{"0"};
    UpDown UpDown2{0, 20};
    TextBox txtHosts;
    CheckBox Check6{"Send Email Alert On Alert Pattern Match"};

    // Mail.
    TextBox txtRecipient{.tool_tip = "Send the mails to..."};
    TextBox txtSmtpServer{.tool_tip = "Mail server address"};
    TextBox txtSender{.tool_tip = "Sender Email Address (must be a email address only)"};  // sic

    /// Turns one of the three audit options on and the other two off.
    void choose(OptionButton& option) {
        for (OptionButton* each : {&optAppend, &optOverwrite, &optMove})
            each->value = each == &option;
    }
};

}  // namespace tessarine
