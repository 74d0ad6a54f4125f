#include "sample_network/wsman_connection.h"

#include <strings.h>

#include "adapters/wsman/basics/base64.h"
#include "adapters/wsman/sign_in/encrypted_message.h"
#include "adapters/wsman/sign_in/security_seal.h"
#include "core/runtime_error.h"
#include "sample_network/wire/http_exchange.h"
#include "sample_network/wire/negotiate_acceptor.h"
#include "sample_network/wire/signed_in_user.h"
#include "sample_network/wire/user_list.h"
#include "sample_network/wsman_session.h"

namespace tessarine::sample {
namespace {

// The security context and the open enumerations belong to the connection.
class WsmanConnection {
  public:
    WsmanConnection(const SampleHost& host, const std::string& channel)
        : host_(host), tls_(!channel.empty()), acceptor_(channel), session_(host) {}

    FaultInjector& faults() { return session_.faults(); }

    HttpAnswer answer(const HttpRequest& request) {
        if (strcasecmp(request.path.c_str(), "/wsman") != 0) return {404, {}, {}, {}};
        if (request.method != "POST") return {405, {}, {}, {}};
        if (!request.authorization.empty()) return authenticate(request.authorization);
        const char* type = tls_ ? "application/soap+xml" : "multipart/encrypted";
        if (!request.content_type.starts_with(type) && !request.body.empty())
            return {500, {}, {}, {}};
        if (acceptor_.context() == GSS_C_NO_CONTEXT || !known_) {
            faults().begin(Moment::Knock);
            return {401, "Negotiate", {}, {}, true};
        }
        return tls_ ? answer_plain(request.body) : answer_sealed(request.body);
    }

  private:
    HttpAnswer authenticate(const std::string& authorization) {
        faults().begin(Moment::SignIn);
        const auto [handshake, token] = acceptor_.accept(authorization);
        const std::string challenge =
            token.empty() ? "Negotiate" : "Negotiate " + encode_base64(token);
        if (handshake != Handshake::Complete) return {401, challenge, {}, {}};
        known_ = signed_in_user(acceptor_.context()).ends_with(kWorkgroupUser) == host_.workgroup;
        if (!known_) return {401, "Negotiate", {}, {}};
        return {200, token.empty() ? std::nullopt : std::optional(challenge), {}, {}};
    }

    HttpAnswer answer_plain(const std::string& body) {
        SoapAnswer soap = session_.answer(body);
        return {soap.status, {}, "application/soap+xml;charset=UTF-8", std::move(soap.text)};
    }

    HttpAnswer answer_sealed(const std::string& body) try {
        SecuritySeal seal(acceptor_.context());
        const SoapAnswer soap = session_.answer(decrypt_message(seal, body));
        HttpAnswer answer{soap.status, {}, kEncryptedContentType, encrypt_message(seal, soap.text)};
        faults().change_sealed(soap.text, answer);
        return answer;
    } catch (const RuntimeError&) {
        return {400, {}, {}, {}};
    }

    const SampleHost& host_;
    bool tls_;
    NegotiateAcceptor acceptor_;
    bool known_ = false;
    WsmanSession session_;
};

}  // namespace

void serve_wsman(Connection& connection, const SampleHost& host, const std::string& channel) {
    HttpReader reader(connection);
    WsmanConnection service(host, channel);
    service.faults().begin(Moment::Connect);
    service.faults().write(connection, "");
    for (bool open = true; open;) {
        const HttpAnswer answer = service.answer(reader.read());
        std::string text = http_text(answer);
        service.faults().change_http(text);
        service.faults().write(connection, text);
        open = !answer.closes_connection;
    }
}

}  // namespace tessarine::sample
