#include "sample_network/negotiate_acceptor.h"

#include "adapters/wsman/base64.h"

namespace tessarine::sample {
namespace {

std::optional<std::string> token_in(std::string_view authorization) {
    constexpr std::string_view kScheme = "Negotiate ";
    if (!authorization.starts_with(kScheme)) return std::nullopt;
    return decode_base64(authorization.substr(kScheme.size()));
}

}  // namespace

NegotiateAcceptor::Step NegotiateAcceptor::accept(std::string_view authorization) {
    const auto token = token_in(authorization);
    if (complete_) context_.reset();
    complete_ = false;
    if (!token) return {Handshake::Refused, ""};
    gss_buffer_desc input = gss_input(*token);
    GssBuffer output;
    OM_uint32 minor = 0;
    const OM_uint32 major = gss_accept_sec_context(
        &minor, context_.address(), GSS_C_NO_CREDENTIAL, &input, GSS_C_NO_CHANNEL_BINDINGS, nullptr,
        nullptr, output.address(), nullptr, nullptr, nullptr);
    if (GSS_ERROR(major)) {
        context_.reset();
        return {Handshake::Refused, ""};
    }
    complete_ = (major & GSS_S_CONTINUE_NEEDED) == 0;
    return {complete_ ? Handshake::Complete : Handshake::GoesOn, output.text()};
}

}  // namespace tessarine::sample
