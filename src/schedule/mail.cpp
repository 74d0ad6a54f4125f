#include "schedule/mail.h"

#include <utility>

#include "core/console_state.h"
#include "core/maker_site.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/mail_sender.h"

namespace tessarine {
namespace {

// The events on Form1.
class ReportEvents : public MailEvents {
  public:
    explicit ReportEvents(Console& console) : console_(console) {}

    void SendFailed(const std::string& Explanation) override {
        console_.platform.dialogs.message_box(
            "Your attempt to send mail failed for the following reason(s): \r\n" + Explanation,
            MessageStyle::Critical);
        console_.mouse_pointer = kPointerDefault;
    }

  protected:
    Console& console_;
};

// The events on Form3.
class TestEvents final : public ReportEvents {
  public:
    using ReportEvents::ReportEvents;

    void Status(const std::string& Status) override { add_line(Status); }
    void SendSuccesful() override { add_line("Mail Sent Successfully!"); }

  private:
    void add_line(const std::string& line) { console_.Form3->lstStatus.items.push_back(line); }
};

// The rows that both mails have.
Mail begun_mail(Console& console, const std::string& subject, const std::string& first_line) {
    const SettingsForm& form = console.Form3.get();
    return {.host_validation = Validation::None,
            .address_validation = Validation::Syntax,
            .delimiter = ';',
            .smtp_host = form.txtSmtpServer.text,
            .sender = form.txtSender.text,
            .sender_name = form.txtSender.text,
            .recipients = form.txtRecipient.text,
            .subject = subject,
            .body = first_line + console.regional.date_time(console.platform.clock.now()) +
                    "\r\n\r\n\r\n" + maker_address("")};
}

void send(Console& console, const Mail& mail, MailEvents& poSendMail) {
    console.Form3->lstStatus.items.clear();
    console.mouse_pointer = kPointerHourglass;
    console.platform.mail_sender.send(mail, poSendMail);
    console.mouse_pointer = kPointerDefault;
}

}  // namespace

void SendMailToEndUser(Console& console, std::string AttPath, const std::string& SubMsg) {
    StatusBar& st1 = console.Form1.st1;
    st1.set_text(5, "Sending Mail..");
    Mail mail = begun_mail(console, SubMsg, "Tessarine Auto Audit Report. Message Sent at : ");
    mail.attachment = std::move(AttPath);
    ReportEvents poSendMail(console);
    send(console, mail, poSendMail);
    st1.set_text(1, "");
    // What tells of the program's coming end stays.
    if (!console.end_wanted) st1.set_text(5, "");
}

void SendMailToUser(Console& console) {
    const SettingsForm& form = console.Form3.get();
    Mail mail = begun_mail(console, "Tessarine", "Email settings Check. Sent at : ");
    mail.user_name = form.TxtUsername.text;
    mail.password = form.TxtPassword.text.text();
    mail.max_recipients = 100;
    TestEvents poSendMail(console);
    send(console, mail, poSendMail);
}

void test_mail_settings(Console& console) {
    console.Form3->st1.set_text(1, "");
    SendMailToUser(console);
    console.Form3->st1.set_text(1, "");
}

}  // namespace tessarine
