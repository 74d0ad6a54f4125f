#include "sample_network/wire/tls_connection.h"

#include <openssl/err.h>

#include <array>
#include <new>

#include "adapters/wsman/sign_in/channel_binding.h"

namespace tessarine::sample {
namespace {

constexpr std::chrono::seconds kPatience{30};

}  // namespace

TlsServer::TlsServer(const TlsIdentity& identity)
    : context_(SSL_CTX_new(TLS_server_method()), SSL_CTX_free),
      channel_binding_(server_end_point_binding(identity.pem())) {
    if (context_ == nullptr) throw std::bad_alloc();
    if (SSL_CTX_use_certificate(context(), identity.certificate.get()) != 1 ||
        SSL_CTX_use_PrivateKey(context(), identity.key.get()) != 1)
        throw std::runtime_error("A certificate can't be used");
}

TlsConnection::TlsConnection(Connection& carrier, const TlsServer& server)
    : carrier_(carrier),
      tls_(SSL_new(server.context()), SSL_free),
      incoming_(BIO_new(BIO_s_mem())),
      outgoing_(BIO_new(BIO_s_mem())) {
    SSL_set_bio(tls_.get(), incoming_, outgoing_);
    run([this] { return SSL_accept(tls_.get()); }, kPatience);
}

std::size_t TlsConnection::read_some(std::span<char> buffer, std::chrono::milliseconds patience) {
    const auto size = static_cast<int>(buffer.size());
    return static_cast<std::size_t>(
        run([&] { return SSL_read(tls_.get(), buffer.data(), size); }, patience));
}

void TlsConnection::write(std::string_view bytes) {
    if (bytes.empty()) return;  // TLS takes that for an error.
    const auto size = static_cast<int>(bytes.size());
    run([&] { return SSL_write(tls_.get(), bytes.data(), size); }, kPatience);
}

int TlsConnection::run(const std::function<int()>& step, std::chrono::milliseconds patience) {
    while (true) {
        ERR_clear_error();
        const int result = step();
        const int reason = SSL_get_error(tls_.get(), result);
        send_waiting();
        if (result > 0) return result;
        if (reason != SSL_ERROR_WANT_READ) throw ConnectionEnded("TLS has ended");
        take_more(patience);
    }
}

void TlsConnection::send_waiting() {
    char* bytes = nullptr;
    const long length = BIO_get_mem_data(outgoing_, &bytes);
    if (length > 0) carrier_.write({bytes, static_cast<std::size_t>(length)});
    BIO_reset(outgoing_);
}

void TlsConnection::take_more(std::chrono::milliseconds patience) {
    std::array<char, std::size_t{16} * 1024> bytes;
    const std::size_t count = carrier_.read_some(bytes, patience);
    BIO_write(incoming_, bytes.data(), static_cast<int>(count));
}

}  // namespace tessarine::sample
