// One mail on its way to a server.
#pragma once

#include <curl/curl.h>

#include <memory>
#include <string>
#include <vector>

#include "adapters/curl/smtp_mail_sender.h"
#include "adapters/curl/smtp_talk.h"
#include "curl/curl_transfer.h"
#include "platform/files.h"

namespace tessarine {

class SmtpDelivery {
  public:
    /// Raises a RuntimeError with the reason for a mail that can't be sent.
    SmtpDelivery(const Mail& mail, Files& files, const SmtpOptions& options);

    /// Raises a RuntimeError with the reason when the mail doesn't reach all of its recipients.
    void run(const SmtpOptions& options, MailEvents& events);

  private:
    struct UrlEnd {
        void operator()(CURLU* url) const { curl_url_cleanup(url); }
    };
    struct MimeEnd {
        void operator()(curl_mime* mime) const { curl_mime_free(mime); }
    };

    void set_server(const std::string& smtp_host);
    void set_envelope(const Mail& mail);
    void set_content(const Mail& mail, Files& files);
    void set_hooks();
    std::string url_part(CURLUPart part, unsigned flags = 0) const;
    void tell(MailEvents& events);
    std::string failure_text(CURLcode code) const;
    std::string server_place() const;

    // libcurl's callbacks; `delivery` is this object.
    static int on_talk(CURL* easy, curl_infotype kind, char* bytes, std::size_t size,
                       void* delivery);
    static int on_progress(void* delivery, curl_off_t, curl_off_t, curl_off_t total,
                           curl_off_t sent);
    static std::size_t on_read(char* buffer, std::size_t size, std::size_t count, void* delivery);

    CurlTransfer transfer_;
    std::unique_ptr<CURLU, UrlEnd> url_;
    std::unique_ptr<curl_mime, MimeEnd> mime_;
    CurlList headers_;
    CurlList recipients_;
    std::unique_ptr<File> attachment_;
    std::string attachment_error_;
    SmtpTalk talk_;
    curl_off_t sent_ = 0;
    int percent_ = 0;
    int told_percent_ = 0;
};

}  // namespace tessarine
