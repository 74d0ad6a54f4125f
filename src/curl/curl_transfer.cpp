#include "curl/curl_transfer.h"

#include <new>

#include "core/runtime_error.h"
#include "curl/certificate_failure.h"

namespace tessarine {
namespace {

constexpr int kPollMilliseconds = 100;
constexpr std::chrono::milliseconds kBetweenCalls{50};

// What a peer may take to say goodbye, for which nothing else can be done.
constexpr long kGoodbyeSeconds = 2;

// Attaches a transfer to its multi handle, and takes it off also when the caller's hook raises.
class Attachment {
  public:
    Attachment(CURLM* multi, CURL* easy) : multi_(multi), easy_(easy) {
        curl_multi_add_handle(multi_, easy_);
    }
    ~Attachment() {
        expect_goodbye(easy_);
        curl_multi_remove_handle(multi_, easy_);
    }
    Attachment(const Attachment&) = delete;
    Attachment& operator=(const Attachment&) = delete;

  private:
    CURLM* multi_;
    CURL* easy_;
};

}  // namespace

void expect_goodbye(CURL* easy) {
    curl_easy_setopt(easy, CURLOPT_SERVER_RESPONSE_TIMEOUT, kGoodbyeSeconds);
}

CurlList curl_list(const std::vector<std::string>& lines) {
    CurlList list(nullptr, curl_slist_free_all);
    for (const std::string& line : lines) {
        curl_slist* longer = curl_slist_append(list.get(), line.c_str());
        if (longer == nullptr) throw std::bad_alloc();
        static_cast<void>(list.release());
        list.reset(longer);
    }
    return list;
}

CurlTransfer::CurlTransfer()
    : easy_(curl_easy_init()),
      multi_(curl_multi_init()),
      last_call_(std::chrono::steady_clock::now()) {
    if (easy_ == nullptr || multi_ == nullptr) throw std::bad_alloc();
    curl_easy_setopt(easy_, CURLOPT_PROXY, "");
    curl_easy_setopt(easy_, CURLOPT_NOSIGNAL, 1L);
}

CurlTransfer::~CurlTransfer() {
    curl_easy_cleanup(easy_);
    curl_multi_cleanup(multi_);
}

// Verification of the certificate and of its name are libcurl's defaults, and stay.
void CurlTransfer::use_tls(const std::string& authorities) {
    curl_easy_setopt(easy_, CURLOPT_SSLVERSION, CURL_SSLVERSION_TLSv1_2);
    if (authorities.empty()) return;
    curl_easy_setopt(easy_, CURLOPT_CAINFO, authorities.c_str());
    curl_easy_setopt(easy_, CURLOPT_CAPATH, nullptr);
}

std::optional<std::string> CurlTransfer::tls_failure_text(CURLcode code, const std::string& peer,
                                                          const std::string& place) const {
    if (code == CURLE_SSL_CACERT_BADFILE)
        return "This machine has no list of certificate authorities: install ca-certificates";
    if (code == CURLE_SSL_CONNECT_ERROR)
        return "What answers " + place + " doesn't speak TLS 1.2 or later";
    if (code != CURLE_PEER_FAILED_VERIFICATION) return std::nullopt;
    long result = 0;
    curl_easy_getinfo(easy_, CURLINFO_SSL_VERIFYRESULT, &result);
    return certificate_failure_text(peer, result);
}

// libcurl finds out about slow peers, but only some seconds late about silent ones.
CURLcode CurlTransfer::run(std::chrono::seconds silence,
                           const std::function<void()>& while_waiting) {
    const Attachment attachment(multi_, easy_);
    peer_spoke();
    for (int running = 1; running != 0; call_now_and_then(while_waiting)) {
        CURLMcode code = curl_multi_perform(multi_, &running);
        if (code == CURLM_OK && running != 0)
            code = curl_multi_poll(multi_, nullptr, 0, kPollMilliseconds, nullptr);
        if (code != CURLM_OK) throw RuntimeError(ErrorNumber::Failed, curl_multi_strerror(code));
        if (running != 0 && std::chrono::steady_clock::now() - last_word_ > silence)
            return CURLE_OPERATION_TIMEDOUT;
    }
    return finished_code();
}

CURLcode CurlTransfer::finished_code() {
    int left = 0;
    const CURLMsg* message = curl_multi_info_read(multi_, &left);
    return message == nullptr ? CURLE_RECV_ERROR : message->data.result;
}

void CurlTransfer::call_now_and_then(const std::function<void()>& while_waiting) {
    const auto now = std::chrono::steady_clock::now();
    if (!while_waiting || now - last_call_ < kBetweenCalls) return;
    last_call_ = now;
    while_waiting();
}

}  // namespace tessarine
