#include "adapters/curl/smtp_mail_sender.h"

#include <string>
#include <utility>

#include "adapters/curl/smtp_delivery.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

bool is_offered(const Mail& mail) {
    return mail.host_validation == Validation::None &&
           mail.address_validation == Validation::Syntax && !mail.as_html &&
           mail.content_base.empty() && mail.encoding_type == 0 && mail.priority == 0 &&
           !mail.read_receipt && !mail.smtp_authentication && !mail.pop_authentication;
}

}  // namespace

SmtpMailSender::SmtpMailSender(Files& files, SmtpOptions options)
    : files_(files), options_(std::move(options)) {}

void SmtpMailSender::send(const Mail& mail, MailEvents& events) {
    std::string reason;
    try {
        if (!is_offered(mail))
            throw RuntimeError(ErrorNumber::Failed,
                               "Only plain mails can be sent, and without a sign-in");
        SmtpDelivery(mail, files_, options_).run(options_, events);
    } catch (const RuntimeError& error) {
        reason = error.description();
    }
    // The connection is closed by now.
    reason.empty() ? events.SendSuccesful() : events.SendFailed(reason);
}

}  // namespace tessarine
