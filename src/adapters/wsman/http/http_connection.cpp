#include "adapters/wsman/http/http_connection.h"

#include <sys/socket.h>

#include <cerrno>
#include <system_error>

#include "adapters/wsman/basics/failure.h"
#include "adapters/wsman/basics/limits.h"

namespace tessarine {
namespace {

// libcurl drops a connection that was idle for longer; its own default is two minutes.
constexpr long kLongestIdleSeconds = 3600;
constexpr long kReceiveBuffer = 256L * 1024;

}  // namespace

HttpConnection::HttpConnection(const HostAddress& address, const std::string& authorities)
    : address_(address), easy_(transfer_.handle()) {
    set_fixed_options();
    if (address.protection != Protection::Tls) return;
    transfer_.use_tls(authorities);
    curl_easy_setopt(easy_, CURLOPT_CERTINFO, 1L);
}

void HttpConnection::set_fixed_options() {
    const bool tls = address_.protection == Protection::Tls;
    curl_easy_setopt(easy_, CURLOPT_URL, address_.url().c_str());
    curl_easy_setopt(easy_, CURLOPT_PROTOCOLS_STR, tls ? "https" : "http");
    curl_easy_setopt(easy_, CURLOPT_HTTP_VERSION, CURL_HTTP_VERSION_1_1);
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

const HttpAnswer& HttpConnection::post(const std::vector<std::string>& headers,
                                       std::string_view body, HttpPatience patience,
                                       const std::function<void()>& while_waiting) {
    const CurlList lines = curl_list(headers);
    curl_easy_setopt(easy_, CURLOPT_HTTPHEADER, lines.get());
    curl_easy_setopt(easy_, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(body.size()));
    curl_easy_setopt(easy_, CURLOPT_POSTFIELDS, body.data());
    curl_easy_setopt(easy_, CURLOPT_LOW_SPEED_TIME, static_cast<long>(patience.silence.count()));
    curl_easy_setopt(easy_, CURLOPT_TIMEOUT, static_cast<long>(patience.whole.count()));
    answer_.clear();
    header_bytes_ = 0;
    const CURLcode code = transfer_.run(patience.silence, while_waiting);
    if (code != CURLE_OK) fail(code);
    answered_ = true;
    curl_easy_getinfo(easy_, CURLINFO_RESPONSE_CODE, &answer_.status);
    return answer_;
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
    const std::string place = "on port " + std::to_string(address_.port) + " of the host";
    if (const auto text = transfer_.tls_failure_text(code, "host", place)) return *text;
    if (code == CURLE_UNSUPPORTED_PROTOCOL || code == CURLE_WEIRD_SERVER_REPLY)
        return "What answers " + place + " doesn't speak HTTP";
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
    self.transfer_.peer_spoke();
    self.header_bytes_ += size * count;
    self.too_large_ = self.header_bytes_ > limits::kAnswerHeaders;
    if (self.too_large_) return 0;
    self.answer_.take_header({bytes, size * count});
    return size * count;
}

std::size_t HttpConnection::on_body(char* bytes, std::size_t size, std::size_t count,
                                    void* connection) {
    auto& self = *static_cast<HttpConnection*>(connection);
    self.transfer_.peer_spoke();
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
