// Mail by libcurl's SMTP. A connection that isn't encrypted from its begin on is encrypted where
// the server offers it (STARTTLS, RFC 3207), and then as strictly. Nobody signs in.
#pragma once

#include <chrono>
#include <functional>
#include <string>

#include "platform/mail_sender.h"

namespace tessarine {

class Files;

struct SmtpOptions {
    /// Called several times a second while a mail is sent.
    std::function<void()> while_waiting;
    /// How long a server may say nothing and take nothing.
    std::chrono::seconds silence{50};
    /// A file of certificate authorities (PEM) in place of the system's.
    std::string authorities;
};

/// Refuses, without a connection: an option that it hasn't (HTML, priority, receipt, sign-in), a
/// host, an address or an attachment that is none, no recipient or too many of them. A mail of
/// which some recipients are refused goes to the others, and fails with the names of those.
class SmtpMailSender final : public MailSender {
  public:
    /// `files` is where attachments are read.
    SmtpMailSender(Files& files, SmtpOptions options);

    void send(const Mail& mail, MailEvents& events) override;

  private:
    Files& files_;
    SmtpOptions options_;
};

}  // namespace tessarine
