#include "sample_network/wire/negotiate_acceptor.h"

#include <gssapi/gssapi_ext.h>

#include "adapters/wsman/basics/base64.h"

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
    gss_channel_bindings_struct bindings{};
    bindings.application_data = gss_input(channel_);
    GssBuffer output;
    OM_uint32 minor = 0;
    OM_uint32 flags = 0;
    const OM_uint32 major =
        gss_accept_sec_context(&minor, context_.address(), GSS_C_NO_CREDENTIAL, &input,
                               channel_.empty() ? GSS_C_NO_CHANNEL_BINDINGS : &bindings, nullptr,
                               nullptr, output.address(), &flags, nullptr, nullptr);
    complete_ = !GSS_ERROR(major) && (major & GSS_S_CONTINUE_NEEDED) == 0;
    const bool unbound = complete_ && !channel_.empty() && (flags & GSS_C_CHANNEL_BOUND_FLAG) == 0;
    if (GSS_ERROR(major) || unbound) {
        complete_ = false;
        context_.reset();
        return {Handshake::Refused, unbound ? "" : output.text()};
    }
    return {complete_ ? Handshake::Complete : Handshake::GoesOn, output.text()};
}

}  // namespace tessarine::sample
