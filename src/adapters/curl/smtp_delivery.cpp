#include "adapters/curl/smtp_delivery.h"

#include <algorithm>
#include <array>
#include <new>
#include <string_view>
#include <system_error>
#include <utility>

#include "adapters/curl/mail_text.h"
#include "core/code_page.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

// However fast it trickles.
constexpr long kWholeDeliverySeconds = 600;
constexpr std::size_t kBlock = std::size_t{64} * 1024;

[[noreturn]] void fail(const std::string& reason) {
    throw RuntimeError(ErrorNumber::Failed, reason);
}

// The bytes of a file from where it stands to its end.
curl_off_t size_of(File& file) {
    std::array<char, kBlock> block;
    curl_off_t size = 0;
    while (const std::size_t got = file.read(block.data(), block.size()))
        size += static_cast<curl_off_t>(got);
    return size;
}

void check(CURLcode code) {
    if (code != CURLE_OK) throw std::bad_alloc();
}

std::string angled(const std::string& address) {
    return "<" + to_utf8(address) + ">";
}

// What libcurl tells of a connection, and a user of a mail server may want to know; all else is
// empty.
std::string_view note_of(std::string_view text) {
    constexpr std::string_view kBegins[] = {"Trying ", "Connected to ", "connect to ",
                                            "SSL connection using "};
    text.remove_prefix(std::min(text.find_first_not_of(' '), text.size()));
    const bool is_noted =
        std::any_of(std::begin(kBegins), std::end(kBegins),
                    [&](std::string_view begin) { return text.starts_with(begin); });
    // The number of the connection follows.
    return is_noted ? text.substr(0, text.find(" (#")) : std::string_view();
}

}  // namespace

SmtpDelivery::SmtpDelivery(const Mail& mail, Files& files, const SmtpOptions& options)
    : url_(curl_url()),
      mime_(curl_mime_init(transfer_.handle())),
      headers_(nullptr, curl_slist_free_all),
      recipients_(nullptr, curl_slist_free_all) {
    if (url_ == nullptr || mime_ == nullptr) throw std::bad_alloc();
    set_server(mail.smtp_host);
    set_envelope(mail);
    set_content(mail, files);
    set_hooks();
    CURL* easy = transfer_.handle();
    transfer_.use_tls(options.authorities);
    curl_easy_setopt(easy, CURLOPT_USE_SSL, CURLUSESSL_TRY);
    curl_easy_setopt(easy, CURLOPT_TIMEOUT, kWholeDeliverySeconds);
    curl_easy_setopt(easy, CURLOPT_SERVER_RESPONSE_TIMEOUT,
                     static_cast<long>(options.silence.count()));
    // The goodbye belongs to the transfer, whose options it keeps to then.
    curl_easy_setopt(easy, CURLOPT_FORBID_REUSE, 1L);
}

void SmtpDelivery::set_server(const std::string& smtp_host) {
    const std::string name(without_blanks_around(smtp_host));
    if (name.empty()) fail("No mail server is given");
    const bool has_scheme = name.find("://") != std::string::npos;
    const bool parsed =
        name.find('\0') == std::string::npos &&
        curl_url_set(url_.get(), CURLUPART_URL,
                     to_utf8(has_scheme ? name : "smtp://" + name).c_str(), 0) == CURLUE_OK;
    const std::string scheme = url_part(CURLUPART_SCHEME);
    const bool is_server = parsed && (scheme == "smtp" || scheme == "smtps") &&
                           url_part(CURLUPART_PATH) == "/" && url_part(CURLUPART_USER).empty() &&
                           url_part(CURLUPART_QUERY).empty() &&
                           url_part(CURLUPART_FRAGMENT).empty();
    if (!is_server) fail("This is no mail server's name: " + name);
    curl_easy_setopt(transfer_.handle(), CURLOPT_CURLU, url_.get());
    curl_easy_setopt(transfer_.handle(), CURLOPT_PROTOCOLS_STR, "smtp,smtps");
}

void SmtpDelivery::set_envelope(const Mail& mail) {
    if (!is_mail_address(mail.sender))
        fail(mail.sender.empty() ? "No sender is given"
                                 : "The sender is no mail address: " + mail.sender);
    const std::vector<std::string> recipients = addresses_of(mail.recipients, mail.delimiter);
    if (recipients.empty()) fail("No recipient is given");
    const auto many = static_cast<std::size_t>(mail.max_recipients);
    if (many != 0 && recipients.size() > many)
        fail("There are " + std::to_string(recipients.size()) + " recipients, and only " +
             std::to_string(many) + " may be given");
    std::vector<std::string> angled_recipients;
    for (const std::string& recipient : recipients) {
        if (!is_mail_address(recipient)) fail("This recipient is no mail address: " + recipient);
        angled_recipients.push_back(angled(recipient));
    }
    recipients_ = curl_list(angled_recipients);
    headers_ = curl_list(mail_headers(mail, recipients));
    CURL* easy = transfer_.handle();
    curl_easy_setopt(easy, CURLOPT_MAIL_FROM, angled(mail.sender).c_str());
    curl_easy_setopt(easy, CURLOPT_MAIL_RCPT, recipients_.get());
    curl_easy_setopt(easy, CURLOPT_MAIL_RCPT_ALLLOWFAILS, 1L);
    curl_easy_setopt(easy, CURLOPT_HTTPHEADER, headers_.get());
}

void SmtpDelivery::set_content(const Mail& mail, Files& files) {
    const std::string body = to_utf8(mail.body);
    curl_mimepart* text = curl_mime_addpart(mime_.get());
    check(curl_mime_data(text, body.data(), body.size()));
    check(curl_mime_type(text, "text/plain; charset=utf-8"));
    // Either has a size that is known beforehand, so that a server can refuse what is too large.
    const bool is_ascii =
        std::all_of(body.begin(), body.end(), [](char c) { return (c & 0x80) == 0; });
    check(curl_mime_encoder(text, is_ascii ? "7bit" : "base64"));
    if (!mail.attachment.empty()) {
        curl_off_t size = 0;
        try {
            size = size_of(*files.open(mail.attachment, OpenFor::Reading));
            attachment_ = files.open(mail.attachment, OpenFor::Reading);
        } catch (const RuntimeError& error) {
            fail("The attachment " + mail.attachment + " can't be read: " + error.description());
        }
        curl_mimepart* file = curl_mime_addpart(mime_.get());
        const std::size_t folder_end = mail.attachment.find_last_of("/\\");
        check(curl_mime_data_cb(file, size, on_read, nullptr, nullptr, this));
        check(curl_mime_filename(file, to_utf8(mail.attachment.substr(folder_end + 1)).c_str()));
        check(curl_mime_type(file, "text/plain; charset=windows-1252"));
        check(curl_mime_encoder(file, "base64"));
    }
    curl_easy_setopt(transfer_.handle(), CURLOPT_MIMEPOST, mime_.get());
}

void SmtpDelivery::set_hooks() {
    CURL* easy = transfer_.handle();
    curl_easy_setopt(easy, CURLOPT_VERBOSE, 1L);
    curl_easy_setopt(easy, CURLOPT_DEBUGFUNCTION, on_talk);
    curl_easy_setopt(easy, CURLOPT_DEBUGDATA, this);
    curl_easy_setopt(easy, CURLOPT_NOPROGRESS, 0L);
    curl_easy_setopt(easy, CURLOPT_XFERINFOFUNCTION, on_progress);
    curl_easy_setopt(easy, CURLOPT_XFERINFODATA, this);
}

void SmtpDelivery::run(const SmtpOptions& options, MailEvents& events) {
    const CURLcode code = transfer_.run(options.silence, [&] {
        tell(events);
        if (options.while_waiting) options.while_waiting();
    });
    tell(events);
    const std::vector<std::string>& refused = talk_.refused_recipients();
    if (code == CURLE_OK && refused.empty()) return;
    std::string reason;
    for (const std::string& recipient : refused)
        reason += "The mail server refused " + recipient + "\r\n";
    if (code == CURLE_OK)
        reason += "The other recipients have got the mail";
    else if (!refused.empty() && talk_.was_refused())
        reason += "Nobody has got the mail";
    else
        reason += failure_text(code);
    fail(reason);
}

void SmtpDelivery::tell(MailEvents& events) {
    for (const std::string& line : talk_.take_lines()) events.Status(line);
    if (percent_ == told_percent_) return;
    told_percent_ = percent_;
    events.Progress(percent_);
}

std::string SmtpDelivery::url_part(CURLUPart part, unsigned flags) const {
    char* text = nullptr;
    if (curl_url_get(url_.get(), part, &text, flags) != CURLUE_OK) return "";
    const std::unique_ptr<char, decltype(&curl_free)> owner(text, curl_free);
    return text;
}

std::string SmtpDelivery::server_place() const {
    return from_utf8(url_part(CURLUPART_HOST)) + ", port " +
           url_part(CURLUPART_PORT, CURLU_DEFAULT_PORT);
}

std::string SmtpDelivery::failure_text(CURLcode code) const {
    if (!attachment_error_.empty()) return "The attachment can't be read: " + attachment_error_;
    if (talk_.was_refused()) return "The mail server refused " + talk_.refusal();
    const std::string place = "at " + server_place();
    if (const auto text = transfer_.tls_failure_text(code, "mail server", place)) return *text;
    long number = 0;
    switch (code) {
        case CURLE_COULDNT_RESOLVE_HOST:
            return "The mail server's name is unknown: " + from_utf8(url_part(CURLUPART_HOST));
        case CURLE_COULDNT_CONNECT:
            curl_easy_getinfo(transfer_.handle(), CURLINFO_OS_ERRNO, &number);
            return "The mail server can't be reached " + place + ": " +
                   std::generic_category().message(static_cast<int>(number));
        case CURLE_OPERATION_TIMEDOUT:
            if (talk_.is_no_smtp()) break;
            return "The mail server doesn't answer " + place + " (timed out)";
        case CURLE_WEIRD_SERVER_REPLY:
            break;
        case CURLE_SEND_ERROR:
        case CURLE_RECV_ERROR:
        case CURLE_GOT_NOTHING:
            return "The connection to the mail server is lost";
        default:
            return std::string("The mail can't be sent: ") + curl_easy_strerror(code);
    }
    return "What answers " + place + " doesn't speak SMTP";
}

int SmtpDelivery::on_talk(CURL* easy, curl_infotype kind, char* bytes, std::size_t size,
                          void* delivery) {
    auto& self = *static_cast<SmtpDelivery*>(delivery);
    const std::string_view text(bytes, size);
    if (kind == CURLINFO_TEXT) self.talk_.note(note_of(text));
    if (kind == CURLINFO_HEADER_OUT) self.talk_.say(text);
    if (kind == CURLINFO_DATA_OUT) self.talk_.begin_content();
    if (kind != CURLINFO_HEADER_IN) return 0;
    self.transfer_.peer_spoke();
    self.talk_.hear(text);
    if (self.talk_.content_is_taken()) expect_goodbye(easy);
    return 0;
}

int SmtpDelivery::on_progress(void* delivery, curl_off_t, curl_off_t, curl_off_t total,
                              curl_off_t sent) {
    auto& self = *static_cast<SmtpDelivery*>(delivery);
    if (sent != std::exchange(self.sent_, sent)) self.transfer_.peer_spoke();
    if (total > 0) self.percent_ = static_cast<int>(std::min(sent, total) * 100 / total);
    return 0;
}

std::size_t SmtpDelivery::on_read(char* buffer, std::size_t size, std::size_t count,
                                  void* delivery) {
    auto& self = *static_cast<SmtpDelivery*>(delivery);
    try {
        return self.attachment_->read(buffer, size * count);
    } catch (const RuntimeError& error) {
        self.attachment_error_ = error.description();
        return CURL_READFUNC_ABORT;
    }
}

}  // namespace tessarine
