// Mail to servers that do what servers do, and what they shouldn't.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <mutex>
#include <optional>

#include "adapters/curl/mail_text.h"
#include "adapters/curl/smtp_mail_sender.h"
#include "fakes/memory_files.h"
#include "sample_network/scratch_file.h"
#include "sample_network/wire/tcp_socket.h"
#include "sample_network/wire/tls_connection.h"

namespace tessarine::sample {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

enum class Encryption { None, Offered, FromTheBegin };

// What a server says to a line that begins so, "" at first, "." after a mail. An empty reply is
// none, "!" ends the connection.
using Replies = std::map<std::string, std::string>;

class MailPort {
  public:
    explicit MailPort(Replies replies, Encryption encryption = Encryption::None,
                      const TlsIdentity& identity = self_signed_identity({"localhost", ""}))
        : replies_(std::move(replies)), encryption_(encryption), tls_server_(identity) {}

    std::string place() const {
        return (encryption_ == Encryption::FromTheBegin ? "smtps://localhost:" : "localhost:") +
               std::to_string(listener_.port());
    }
    /// The commands and lines of mails.
    std::string heard() {
        const std::lock_guard lock(mutex_);
        return heard_;
    }

  private:
    void serve(Connection& carrier) {
        Connection* connection = &carrier;
        std::optional<TlsConnection> tls;
        if (encryption_ == Encryption::FromTheBegin)
            connection = &tls.emplace(carrier, tls_server_);
        bool in_content = false;
        for (std::string line; answer(*connection, line, in_content);) {
            if (line == "STARTTLS") connection = &tls.emplace(carrier, tls_server_);
            do line = read_line(*connection);
            while (in_content && line != ".");
        }
    }

    // False where the connection ends.
    bool answer(Connection& connection, const std::string& line, bool& in_content) {
        std::string reply = line.empty() ? "220 mail ready" : "250 ok";
        if (line == "DATA") reply = "354 go on";
        if (line == "STARTTLS") reply = "220 go on";
        if (line.starts_with("EHLO"))
            reply = encryption_ == Encryption::Offered ? "250-mail\r\n250 STARTTLS" : "250 mail";
        for (const auto& [begin, other] : replies_)
            if (begin.empty() ? line.empty() : line.starts_with(begin)) reply = other;
        in_content = line == "DATA" && reply.starts_with("354");
        if (reply == "!") return false;
        if (!reply.empty()) connection.write(reply + "\r\n");
        return line != "QUIT" || reply.empty();
    }

    std::string read_line(Connection& connection) {
        std::string line;
        for (char c = 0; c != '\n'; line += c)
            connection.read_some({&c, 1}, std::chrono::seconds(10));
        while (line.ends_with('\n') || line.ends_with('\r')) line.pop_back();
        const std::lock_guard lock(mutex_);
        heard_ += line + "\n";
        return line;
    }

    Replies replies_;
    Encryption encryption_;
    TlsServer tls_server_;
    std::mutex mutex_;
    std::string heard_;
    ConnectionServer listener_{"127.0.0.1", 0, [this](Connection& carrier) { serve(carrier); }};
};

struct Outcome final : MailEvents {
    void Status(const std::string& line) override { status += line + "\n"; }
    void Progress(int percent) override { last_percent = percent; }
    void SendFailed(const std::string& reason) override { outcome += "failed: " + reason; }
    void SendSuccesful() override { outcome += "sent"; }

    std::string outcome;
    std::string status;
    int last_percent = 0;
};

class MailSending : public testing::Test {
  protected:
    MailSending() { files.put("/report.log", "PC1  - Ok: \xC4\r\n.\r\nlast"); }

    Outcome send_to(const std::string& place) {
        mail.smtp_host = place;
        Outcome outcome;
        SmtpMailSender(files, options).send(mail, outcome);
        return outcome;
    }

    CertificateAuthority authority;
    ScratchFile trusted{authority.pem()};
    SmtpOptions options{.silence = std::chrono::seconds(1), .authorities = trusted.path()};
    fakes::MemoryFiles files;
    Mail mail{.sender = "console@sample.example",
              .sender_name = "console@sample.example",
              .recipients = "one@sample.example; two@sample.example;",
              .subject = "Subject",
              .body = "Body\r\n",
              .attachment = "/report.log"};
};

// The reason without what differs from run to run.
std::string reason(const Outcome& outcome) {
    std::string text = outcome.outcome;
    const std::size_t port = text.find("port ");
    if (port == std::string::npos) return text;
    const std::size_t end = text.find_first_not_of("0123456789", port + 5);
    return text.replace(port + 5, end - port - 5, "N");
}

TEST_F(MailSending, GoesToAllRecipientsAsSecretlyAsTheServerCan) {
    const TlsIdentity identity = authority.identity({"localhost", ""});
    for (const auto encryption :
         {Encryption::None, Encryption::Offered, Encryption::FromTheBegin}) {
        MailPort port({}, encryption, identity);
        const Outcome outcome = send_to(port.place());
        EXPECT_EQ(outcome.outcome, "sent");
        EXPECT_EQ(outcome.last_percent, 100);
        EXPECT_THAT(outcome.status, HasSubstr("< 220 mail ready\n> EHLO "));
        EXPECT_THAT(outcome.status, EndsWith("> DATA\n< 354 go on\n< 250 ok\n> QUIT\n< 250 ok\n"));
        const std::string heard = port.heard();
        EXPECT_THAT(heard, HasSubstr("MAIL FROM:<console@sample.example>\n"
                                     "RCPT TO:<one@sample.example>\n"
                                     "RCPT TO:<two@sample.example>\nDATA\n"));
        EXPECT_THAT(heard, HasSubstr("From: \"console@sample.example\" <console@sample.example>\n"
                                     "To: one@sample.example,\n two@sample.example\n"
                                     "Subject: Subject\nMessage-ID: <"));
        EXPECT_THAT(heard, HasSubstr("filename=\"report.log\""));
        EXPECT_EQ(heard.find("STARTTLS\n") < heard.find("MAIL"), encryption == Encryption::Offered);
    }
}

TEST_F(MailSending, TellsTheServersOwnReason) {
    const std::string lost = "failed: The connection to the mail server is lost";
    const std::string silent =
        "failed: The mail server doesn't answer at localhost, port N (timed out)";
    const struct {
        Replies replies;
        std::string outcome;
    } cases[] = {
        {{{"", ""}}, silent},
        {{{"", "!"}}, lost},
        {{{"", "554 not for you"}},
         "failed: The mail server refused the connection: 554 not for you"},
        {{{"", "SSH-2.0-other"}}, "failed: What answers at localhost, port N doesn't speak SMTP"},
        {{{"EHLO", "502 what"}, {"HELO", ""}}, silent},
        {{{"MAIL", "530-sign in\r\n530 before"}},
         "failed: The mail server refused MAIL FROM:<console@sample.example>: "
         "530-sign in 530 before"},
        {{{"RCPT TO:<two", "550 5.1.1 nobody"}},
         "failed: The mail server refused <two@sample.example>: 550 5.1.1 nobody\r\n"
         "The other recipients have got the mail"},
        {{{"RCPT", "550 no relay"}},
         "failed: The mail server refused <one@sample.example>: 550 no relay\r\n"
         "The mail server refused <two@sample.example>: 550 no relay\r\nNobody has got the mail"},
        {{{"RCPT TO:<one", "550 nobody"}, {"RCPT TO:<two", "!"}},
         "failed: The mail server refused <one@sample.example>: 550 nobody\r\n" + lost.substr(8)},
        {{{"DATA", "451 later"}}, "failed: The mail server refused DATA: 451 later"},
        {{{"DATA", "!"}}, lost},
        {{{".", "554 \x1B[1m spam\nand \xC3\xA9\xE2\x82"}},
         "failed: The mail server refused the mail: 554  [1m spam"},
        {{{".", ""}, {"QUIT", ""}}, silent},
        {{{".", "!"}}, lost},
        {{{"QUIT", ""}}, "sent"},
        {{{"QUIT", "!"}}, "sent"},
        {{{"QUIT", "500 what"}}, "sent"},
    };
    for (const auto& [replies, outcome] : cases) {
        MailPort port(replies);
        EXPECT_EQ(reason(send_to(port.place())), outcome);
    }
}

TEST_F(MailSending, NeedsAServerThatIsThere) {
    const std::string place = MailPort({}).place();
    EXPECT_EQ(reason(send_to(place)),
              "failed: The mail server can't be reached at localhost, port N: Connection refused");
    EXPECT_EQ(send_to("no-such-host.invalid").outcome,
              "failed: The mail server's name is unknown: no-such-host.invalid");
}

// A server whose certificate isn't trusted hears of no mail.
TEST_F(MailSending, WantsACertificateForTheServersName) {
    for (const auto encryption : {Encryption::Offered, Encryption::FromTheBegin}) {
        MailPort other_name({}, encryption, authority.identity({"other.example", ""}));
        EXPECT_EQ(send_to(other_name.place()).outcome,
                  "failed: The mail server's certificate is for another name than the one it was "
                  "called by");
        MailPort expired({}, encryption, authority.identity({"localhost", "", -9, -1}));
        EXPECT_EQ(send_to(expired.place()).outcome,
                  "failed: The mail server's certificate has expired");
        MailPort unknown({}, encryption);
        EXPECT_THAT(send_to(unknown.place()).outcome,
                    StartsWith("failed: The mail server's certificate is signed by itself"));
        for (MailPort* port : {&other_name, &expired, &unknown})
            EXPECT_THAT(port->heard(), Not(HasSubstr("MAIL")));
    }
}

TEST_F(MailSending, RefusesWhatCantBeSentBeforeItConnects) {
    MailPort port({});
    const struct {
        std::function<void(Mail&)> change;
        std::string reason;
    } cases[] = {
        {[](Mail& each) { each.smtp_host = " "; }, "No mail server is given"},
        {[](Mail& each) { each.smtp_host += "/path"; }, "This is no mail server's name: "},
        {[](Mail& each) { each.smtp_host = "user:word@host"; }, "This is no mail server's name: "},
        {[](Mail& each) { each.smtp_host = "http://host"; }, "This is no mail server's name: "},
        {[](Mail& each) { each.smtp_host = "two words"; }, "This is no mail server's name: "},
        {[](Mail& each) { each.smtp_host = "host:65536"; }, "This is no mail server's name: "},
        {[](Mail& each) { each.sender = ""; }, "No sender is given"},
        {[](Mail& each) { each.sender = "a@b>\r\nRCPT TO:<c@d"; }, "The sender is no mail address"},
        {[](Mail& each) { each.recipients = " ; "; }, "No recipient is given"},
        {[](Mail& each) { each.recipients = "a@b;c"; }, "This recipient is no mail address: c"},
        {[](Mail& each) { each.max_recipients = 1; }, "There are 2 recipients, and only 1 may be"},
        {[](Mail& each) { each.attachment = "/gone"; },
         "The attachment /gone can't be read: File not found"},
        {[](Mail& each) { each.smtp_authentication = true; }, "Only plain mails can be sent"},
        {[](Mail& each) { each.read_receipt = true; }, "Only plain mails can be sent"},
    };
    for (const auto& [change, expected] : cases) {
        Mail changed = mail;
        changed.smtp_host = port.place();
        change(changed);
        Outcome outcome;
        SmtpMailSender(files, options).send(changed, outcome);
        EXPECT_THAT(outcome.outcome, StartsWith("failed: " + expected));
        EXPECT_EQ(outcome.status, "");
    }
}

TEST_F(MailSending, NeverHandsOutCredentials) {
    mail.user_name = "ACME\\auditor";
    mail.password = "s3cret-word";
    MailPort port(Replies{{"EHLO", "250-mail\r\n250 AUTH PLAIN LOGIN"}});
    const Outcome outcome = send_to(port.place());
    EXPECT_EQ(outcome.outcome, "sent");
    EXPECT_THAT(port.heard(), Not(HasSubstr("AUTH")));
    for (const char* secret : {"auditor", "s3cret"})
        EXPECT_THAT(port.heard() + outcome.status, Not(HasSubstr(secret)));
}

TEST_F(MailSending, KeepsATalkativeServerInBounds) {
    std::string lines;
    for (int i = 0; i < 5000; ++i) lines += "250-" + std::string(600, 'x') + "\r\n";
    MailPort port(Replies{{"EHLO", lines + "250 mail"}});
    const Outcome outcome = send_to(port.place());
    EXPECT_THAT(outcome.status, HasSubstr("< 250-xxx"));
    EXPECT_LT(outcome.status.size(), 1000u * 520);
}

TEST_F(MailSending, WritesNamesThatAreNotAscii) {
    mail.sender_name = "Zo\xEB \"Q\" \\ M\xFCller";
    mail.body = "\xC4";
    MailPort port({});
    EXPECT_EQ(send_to(port.place()).outcome, "sent");
    EXPECT_THAT(port.heard(), HasSubstr("From: =?UTF-8?Q?Zo=C3=AB=20=22?=\n =?UTF-8?Q?Q=22=20=5C"));
    EXPECT_THAT(port.heard(), HasSubstr("\nw4Q=\n"));
}

TEST_F(MailSending, LetsItsCallerActWhileItWaits) {
    int calls = 0;
    options.while_waiting = [&] { ++calls; };
    MailPort port(Replies{{"DATA", ""}});
    send_to(port.place());
    EXPECT_GT(calls, 5);
}

TEST(MailAddress, IsANameAtADomain) {
    for (const char* good : {"a@b", "first.last+tag@mail.example.com", "o'neil@x-y.example"})
        EXPECT_TRUE(is_mail_address(good)) << good;
    for (const char* bad : {"", "a", "@b", "a@", "a@b@c", "a b@c", "a@b.", ".a@b", "a..b@c",
                            "<a@b>", "a@b,c@d", "a\r@b", "\"a\"@b", "a@[127.0.0.1]"})
        EXPECT_FALSE(is_mail_address(bad)) << bad;
}

}  // namespace
}  // namespace tessarine::sample
