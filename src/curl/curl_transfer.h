// One transfer of libcurl's, on the caller's thread.
#pragma once

#include <curl/curl.h>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace tessarine {

using CurlList = std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)>;

CurlList curl_list(const std::vector<std::string>& lines);

/// The peer has no more than its goodbye to say, for which nothing waits long.
void expect_goodbye(CURL* easy);

class CurlTransfer {
  public:
    /// No proxy, no signals; all else is the caller's.
    CurlTransfer();
    ~CurlTransfer();
    CurlTransfer(const CurlTransfer&) = delete;
    CurlTransfer& operator=(const CurlTransfer&) = delete;

    CURL* handle() const { return easy_; }

    /// TLS is of version 1.2 or later, with a certificate for the peer's name from one of the
    /// system's authorities, or from those in the file `authorities` (PEM) where that is not empty.
    void use_tls(const std::string& authorities);

    /// Runs what the handle is set to, to its end or until the peer has been silent for so long.
    /// `while_waiting`, where there is one, is called several times a second meanwhile; what it
    /// raises ends the transfer.
    CURLcode run(std::chrono::seconds silence, const std::function<void()>& while_waiting);

    /// Why TLS came to nothing, after a run that ended with `code`; nothing for other codes. `peer`
    /// is what the text calls it ("host"), `place` where it is ("on port 5986 of the host").
    std::optional<std::string> tls_failure_text(CURLcode code, const std::string& peer,
                                                const std::string& place) const;

    /// For the handle's callbacks: the peer is not silent.
    void peer_spoke() { last_word_ = std::chrono::steady_clock::now(); }

  private:
    CURLcode finished_code();
    void call_now_and_then(const std::function<void()>& while_waiting);

    CURL* easy_;
    CURLM* multi_;
    std::chrono::steady_clock::time_point last_call_;
    std::chrono::steady_clock::time_point last_word_;
};

}  // namespace tessarine
