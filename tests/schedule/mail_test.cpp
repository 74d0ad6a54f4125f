#include "schedule/mail.h"

#include <gtest/gtest.h>

#include <string>

#include "app/events.h"
#include "fakes/drawn.h"
#include "fakes/rig.h"

namespace tessarine {
namespace {

class Mails : public testing::Test {
  protected:
    Mails() {
        rig.clock.moment = {{2024, 2, 20}, {9, 5, 0}};
        form.txtSmtpServer.text = "mail.example:2525";
        form.txtSender.text = "console@acme.example";
        form.txtRecipient.text = "one@acme.example;two@acme.example";
        form.TxtUsername.text = "ACME\\auditor";
        form.TxtPassword.text = "s3cret";
        form.lstStatus.items = {"of the mail before"};
        rig.mail.during_send = [this] {
            EXPECT_EQ(rig.console.mouse_pointer, kPointerHourglass);
            EXPECT_TRUE(form.lstStatus.items.empty());
        };
    }
    ~Mails() override { EXPECT_EQ(rig.console.mouse_pointer, kPointerDefault); }

    // What both mails have in common.
    void expect_addresses(const Mail& mail) const {
        EXPECT_EQ(mail.host_validation, Validation::None);
        EXPECT_EQ(mail.address_validation, Validation::Syntax);
        EXPECT_EQ(mail.delimiter, ';');
        EXPECT_EQ(mail.smtp_host, "mail.example:2525");
        EXPECT_EQ(mail.sender, "console@acme.example");
        EXPECT_EQ(mail.sender_name, "console@acme.example");
        EXPECT_EQ(mail.recipients, "one@acme.example;two@acme.example");
        EXPECT_FALSE(mail.smtp_authentication || mail.pop_authentication);
    }

    const fakes::ScriptedDialogs::Message kFailure{
        "Your attempt to send mail failed for the following reason(s): \r\n550 nobody",
        MessageStyle::Critical};
    fakes::Rig rig{control_events()};
    SettingsForm& form = rig.console.Form3.get();
};

TEST_F(Mails, AReportGoesOutWithItsFile) {
    const fakes::StatusHistory history(rig.console.Form1.st1);
    rig.mail.status_lines = {"< 220 ready"};
    rig.run([](Console& console) { SendMailToEndUser(console, "/logs/report.log", "Subject"); });
    const Mail& mail = rig.mail.sent.at(0);
    expect_addresses(mail);
    EXPECT_EQ(mail.subject, "Subject");
    EXPECT_EQ(mail.attachment, "/logs/report.log");
    EXPECT_EQ(mail.body,
              "Tessarine Auto Audit Report. Message Sent at : 2/20/2024 9:05:00 AM\r\n\r\n\r\n"
              "http://www.tessarine.example");
    EXPECT_EQ(mail.user_name + rig.mail.passwords.at(0), "");
    EXPECT_EQ(mail.max_recipients, 0);
    EXPECT_EQ(history.lines, "5: Sending Mail..\n5: \n");
    EXPECT_TRUE(form.lstStatus.items.empty());
    EXPECT_TRUE(rig.dialogs.messages.empty());
}

TEST_F(Mails, AFailureIsToldAndLeavesTheProgramsEndInSight) {
    rig.mail.explanation = "550 nobody";
    rig.mail.during_send = [this] { end_after_event(rig.console); };
    rig.run([](Console& console) { SendMailToEndUser(console, "/logs/report.log", "Subject"); });
    EXPECT_EQ(rig.dialogs.messages.at(0), kFailure);
    EXPECT_EQ(rig.console.Form1.st1.text(5), "Closing when done ...");
    EXPECT_TRUE(rig.program.ended);
}

TEST_F(Mails, ATestShowsWhatTheServerSays) {
    form.st1.set_text(1, "Email Settings Saved....");
    rig.mail.status_lines = {"< 220 ready", "> QUIT"};
    rig.run(test_mail_settings);
    const Mail& mail = rig.mail.sent.at(0);
    expect_addresses(mail);
    EXPECT_EQ(mail.subject, "Tessarine");
    EXPECT_EQ(mail.attachment, "");
    EXPECT_EQ(mail.body,
              "Email settings Check. Sent at : 2/20/2024 9:05:00 AM\r\n\r\n\r\n"
              "http://www.tessarine.example");
    EXPECT_EQ(mail.user_name, "ACME\\auditor");
    EXPECT_EQ(rig.mail.passwords.at(0), "s3cret");
    EXPECT_EQ(mail.max_recipients, 100);
    EXPECT_EQ(form.st1.text(1), "");
    EXPECT_EQ(form.lstStatus.items,
              (std::vector<std::string>{"< 220 ready", "> QUIT", "Mail Sent Successfully!"}));

    rig.mail.explanation = "550 nobody";
    rig.run(test_mail_settings);
    EXPECT_EQ(form.lstStatus.items, (std::vector<std::string>{"< 220 ready", "> QUIT"}));
    EXPECT_EQ(rig.dialogs.messages.at(0), kFailure);
}

}  // namespace
}  // namespace tessarine
