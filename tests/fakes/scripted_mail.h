// A mail server as a test would have it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/mail_sender.h"

namespace tessarine::fakes {

/// Keeps what is sent. Each send tells the status lines, and then of success, or of a failure where
/// there is an explanation for one.
class ScriptedMail final : public MailSender {
  public:
    void send(const Mail& mail, MailEvents& events) override {
        sent.push_back(mail);
        passwords.emplace_back(mail.password);
        sent.back().password = {};
        if (during_send) during_send();
        events.Progress(50);
        for (const std::string& line : status_lines) events.Status(line);
        explanation.empty() ? events.SendSuccesful() : events.SendFailed(explanation);
    }

    std::vector<std::string> status_lines;
    std::string explanation;
    std::function<void()> during_send;

    std::vector<Mail> sent;
    std::vector<std::string> passwords;  ///< of those mails
};

}  // namespace tessarine::fakes
