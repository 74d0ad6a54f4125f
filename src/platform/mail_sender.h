// Mail over SMTP.
#pragma once

#include <string>
#include <string_view>

namespace tessarine {

/// How closely a name is looked at before anything is sent.
enum class Validation { None, Syntax };

/// One mail and how it is to be sent. Texts are in the console's 8-bit code page.
struct Mail {
    Validation host_validation = Validation::None;
    Validation address_validation = Validation::Syntax;
    char delimiter = ';';     ///< between the addresses of a list
    std::string smtp_host;    ///< NAME, NAME:PORT or smtps://NAME[:PORT]
    std::string sender;       ///< an address
    std::string sender_name;  ///< what a reader sees in its place
    std::string recipients;   ///< a list of addresses
    std::string subject;
    std::string body;        ///< lines end in CR LF
    std::string attachment;  ///< path of a file; empty for none
    bool as_html = false;
    std::string content_base;
    int encoding_type = 0;  ///< 0 is MIME
    int priority = 0;       ///< 0 is none
    bool read_receipt = false;
    bool smtp_authentication = false;
    bool pop_authentication = false;
    /// Of no effect without one of the two flags above.
    std::string user_name;
    /// The same; holds until the first event, so that no copy is left behind.
    std::string_view password;
    int max_recipients = 0;  ///< 0 for no limit
};

/// What becomes of a mail, told while it is sent.
class MailEvents {
  public:
    virtual ~MailEvents() = default;

    /// How much of the mail is on its way, in percent.
    virtual void Progress(int /*lPercentCompete*/) {}
    /// A line of the talk with the server.
    virtual void Status(const std::string& /*Status*/) {}
    virtual void SendFailed(const std::string& Explanation) = 0;
    virtual void SendSuccesful() {}
};

class MailSender {
  public:
    virtual ~MailSender() = default;

    /// Sends the mail and returns when it is done. `events` hears of it meanwhile, on this thread,
    /// and at the end either of success or of failure. What is asked for and can't be done is a
    /// failure, and then nothing is sent.
    virtual void send(const Mail& mail, MailEvents& events) = 0;
};

}  // namespace tessarine
