#include "adapters/wsman/http/http_connection.h"

#include <sys/socket.h>

#include <cerrno>
#include <memory>
#include <new>
#include <system_error>
#include <utility>

#include "adapters/wsman/basics/failure.h"
#include "adapters/wsman/basics/limits.h"
#include "adapters/wsman/http/tls_error.h"

namespace tessarine {
namespace {

constexpr int kPollMilliseconds = 100;
constexpr std::chrono::milliseconds kBetweenCalls{50};
// libcurl drops a connection that was idle for longer; its own default is two minutes.
constexpr long kLongestIdleSeconds = 3600;
constexpr long kReceiveBuffer = 256L * 1024;

using HeaderLines = std::unique_ptr<curl_slist, decltype(&curl_slist_free_all)>;

HeaderLines header_lines(const std::vector<std::string>& headers) {
    HeaderLines lines(nullptr, curl_slist_free_all);
    for (const std::string& header : headers) {
        curl_slist* longer = curl_slist_append(lines.get(), header.c_str());
        if (longer == nullptr) throw std::bad_alloc();
        static_cast<void>(lines.release());
        lines.reset(longer);
    }
    return lines;
}

// Attaches a transfer to its multi handle, and takes it off also when the caller's hook raises.
class Attachment {
  public:
    Attachment(CURLM* multi, CURL* easy) : multi_(multi), easy_(easy) {
        curl_multi_add_handle(multi_, easy_);
    }
    ~Attachment() { curl_multi_remove_handle(multi_, easy_); }
    Attachment(const Attachment&) = delete;
    Attachment& operator=(const Attachment&) = delete;

  private:
    CURLM* multi_;
    CURL* easy_;
};

}  // namespace

HttpConnection::HttpConnection(const HostAddress& address, const std::string& authorities)
    : address_(address),
      last_call_(std::chrono::steady_clock::now()),
      easy_(curl_easy_init()),
      multi_(curl_multi_init()) {
    if (easy_ == nullptr || multi_ == nullptr) throw std::bad_alloc();
    set_fixed_options();
    if (address.protection == Protection::Tls) set_tls_options(authorities);
}

HttpConnection::~HttpConnection() {
    curl_easy_cleanup(easy_);
    curl_multi_cleanup(multi_);
}

void HttpConnection::set_fixed_options() {
    const bool tls = address_.protection == Protection::Tls;
    curl_easy_setopt(easy_, CURLOPT_URL, address_.url().c_str());
    curl_easy_setopt(easy_, CURLOPT_PROTOCOLS_STR, tls ? "https" : "http");
    curl_easy_setopt(easy_, CURLOPT_HTTP_VERSION, CURL_HTTP_VERSION_1_1);
    curl_easy_setopt(easy_, CURLOPT_PROXY, "");
    curl_easy_setopt(easy_, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(easy_, CURLOPT_POST, 1L);
    curl_easy_setopt(easy_, CURLOPT_MAXAGE_CONN, kLongestIdleSeconds);
    curl_easy_setopt(easy_, CURLOPT_CONNECTTIMEOUT, static_cast<long>(limits::kConnect.count()));
    curl_easy_setopt(easy_, CURLOPT_LOW_SPEED_LIMIT, limits::kSlowestTransfer);
    curl_easy_setopt(easy_, CURLOPT_BUFFERSIZE, kReceiveBuffer);
    curl_easy_setopt(easy_, CURLOPT_HEADERFUNCTION, on_header);
    curl_easy_setopt(easy_, CURLOPT_HEADERDATA, this);
    curl_easy_setopt(easy_, CURLOPT_WRITEFUNCTION, on_body);
    curl_easy_setopt(easy_, CURLOPT_WRITEDATA, this);
    curl_easy_setopt(easy_, CURLOPT_OPENSOCKETFUNCTION, on_open_socket);
    curl_easy_setopt(easy_, CURLOPT_OPENSOCKETDATA, this);
}

// Verification of the certificate and of its name are libcurl's defaults, and stay.
void HttpConnection::set_tls_options(const std::string& authorities) {
    curl_easy_setopt(easy_, CURLOPT_SSLVERSION, CURL_SSLVERSION_TLSv1_2);
    curl_easy_setopt(easy_, CURLOPT_CERTINFO, 1L);
    if (authorities.empty()) return;
    curl_easy_setopt(easy_, CURLOPT_CAINFO, authorities.c_str());
    curl_easy_setopt(easy_, CURLOPT_CAPATH, nullptr);
}

const HttpAnswer& HttpConnection::post(const std::vector<std::string>& headers,
                                       std::string_view body, HttpPatience patience,
                                       const std::function<void()>& while_waiting) {
    const HeaderLines lines = header_lines(headers);
    curl_easy_setopt(easy_, CURLOPT_HTTPHEADER, lines.get());
    curl_easy_setopt(easy_, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(body.size()));
    curl_easy_setopt(easy_, CURLOPT_POSTFIELDS, body.data());
    curl_easy_setopt(easy_, CURLOPT_LOW_SPEED_TIME, static_cast<long>(patience.silence.count()));
    curl_easy_setopt(easy_, CURLOPT_TIMEOUT, static_cast<long>(patience.whole.count()));
    answer_.clear();
    header_bytes_ = 0;
    last_word_ = std::chrono::steady_clock::now();
    const CURLcode code = run(patience, while_waiting);
    if (code != CURLE_OK) fail(code);
    answered_ = true;
    curl_easy_getinfo(easy_, CURLINFO_RESPONSE_CODE, &answer_.status);
    return answer_;
}

// libcurl finds out about slow hosts, but only some seconds late about silent ones.
CURLcode HttpConnection::run(HttpPatience patience, const std::function<void()>& while_waiting) {
    const Attachment attachment(multi_, easy_);
    for (int running = 1; running != 0; call_now_and_then(while_waiting)) {
        CURLMcode code = curl_multi_perform(multi_, &running);
        if (code == CURLM_OK && running != 0)
            code = curl_multi_poll(multi_, nullptr, 0, kPollMilliseconds, nullptr);
        if (code != CURLM_OK) raise_failure(curl_multi_strerror(code));
        if (std::chrono::steady_clock::now() - last_word_ > patience.silence)
            return CURLE_OPERATION_TIMEDOUT;
    }
    return finished_code();
}

CURLcode HttpConnection::finished_code() {
    int left = 0;
    const CURLMsg* message = curl_multi_info_read(multi_, &left);
    return message == nullptr ? CURLE_RECV_ERROR : message->data.result;
}

void HttpConnection::call_now_and_then(const std::function<void()>& while_waiting) {
    const auto now = std::chrono::steady_clock::now();
    if (!while_waiting || now - last_call_ < kBetweenCalls) return;
    last_call_ = now;
    while_waiting();
}

void HttpConnection::fail(CURLcode code) const {
    if (code != CURLE_COULDNT_CONNECT || answered_) raise_failure(failure_text(code));
    long number = 0;
    curl_easy_getinfo(easy_, CURLINFO_OS_ERRNO, &number);
    const std::string text = connect_failure_text(static_cast<int>(number));
    if (number == ECONNREFUSED) throw PortClosed(ErrorNumber::Failed, text);
    raise_failure(text);
}

std::string HttpConnection::failure_text(CURLcode code) const {
    // libcurl has no memory for a header line of more than 100 KB.
    if (too_large_ || code == CURLE_OUT_OF_MEMORY) return "The host's answer is too large";
    if (code == CURLE_COULDNT_RESOLVE_HOST) return "The host's name is unknown";
    if (code == CURLE_OPERATION_TIMEDOUT) return "The host doesn't answer (timed out)";
    if (code == CURLE_PEER_FAILED_VERIFICATION || code == CURLE_SSL_CONNECT_ERROR ||
        code == CURLE_SSL_CACERT_BADFILE)
        return tls_failure_text(code);
    if (code == CURLE_UNSUPPORTED_PROTOCOL || code == CURLE_WEIRD_SERVER_REPLY)
        return "What answers on port " + std::to_string(address_.port) +
               " of the host doesn't speak HTTP";
    if (answered_ || code == CURLE_SEND_ERROR || code == CURLE_RECV_ERROR ||
        code == CURLE_GOT_NOTHING || code == CURLE_PARTIAL_FILE)
        return "The connection to the host is lost";
    return std::string("The connection to the host failed: ") + curl_easy_strerror(code);
}

std::string HttpConnection::connect_failure_text(int number) const {
    if (number == ECONNREFUSED)
        return "Port " + std::to_string(address_.port) +
               " of the host is closed (connection refused)";
    return "The host can't be reached: " + std::generic_category().message(number);
}

std::string HttpConnection::tls_failure_text(CURLcode code) const {
    if (code == CURLE_SSL_CACERT_BADFILE)
        return "This machine has no list of certificate authorities: install ca-certificates";
    if (code == CURLE_SSL_CONNECT_ERROR)
        return "What answers on port " + std::to_string(address_.port) +
               " of the host doesn't speak TLS 1.2 or later";
    long result = 0;
    curl_easy_getinfo(easy_, CURLINFO_SSL_VERIFYRESULT, &result);
    return certificate_failure_text(result);
}

std::string HttpConnection::server_certificate() const {
    constexpr std::string_view kField = "Cert:";
    curl_certinfo* chain = nullptr;
    curl_easy_getinfo(easy_, CURLINFO_CERTINFO, &chain);
    if (chain == nullptr || chain->num_of_certs == 0) return "";
    for (const curl_slist* line = chain->certinfo[0]; line != nullptr; line = line->next)
        if (std::string_view(line->data).substr(0, kField.size()) == kField)
            return line->data + kField.size();
    return "";
}

std::size_t HttpConnection::on_header(char* bytes, std::size_t size, std::size_t count,
                                      void* connection) {
    auto& self = *static_cast<HttpConnection*>(connection);
    self.last_word_ = std::chrono::steady_clock::now();
    self.header_bytes_ += size * count;
    self.too_large_ = self.header_bytes_ > limits::kAnswerHeaders;
    if (self.too_large_) return 0;
    self.answer_.take_header({bytes, size * count});
    return size * count;
}

std::size_t HttpConnection::on_body(char* bytes, std::size_t size, std::size_t count,
                                    void* connection) {
    auto& self = *static_cast<HttpConnection*>(connection);
    self.last_word_ = std::chrono::steady_clock::now();
    self.too_large_ = self.answer_.body.size() + size * count > limits::kAnswerBody;
    if (self.too_large_) return 0;
    self.answer_.body.append(bytes, size * count);
    return size * count;
}

// libcurl would answer the death of the connection with a new one and send the sealed message there
// once more. A new connection has no security context, and the host's cursor may have moved.
curl_socket_t HttpConnection::on_open_socket(void* connection, curlsocktype,
                                             curl_sockaddr* address) {
    if (static_cast<const HttpConnection*>(connection)->answered_) return CURL_SOCKET_BAD;
    return socket(address->family, address->socktype | SOCK_CLOEXEC, address->protocol);
}

}  // namespace tessarine
