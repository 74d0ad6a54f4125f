// The tie between a sign-in and its TLS connection.
#include <gtest/gtest.h>
#include <openssl/sha.h>

#include "adapters/wsman/basics/base64.h"
#include "adapters/wsman/sign_in/channel_binding.h"
#include "adapters/wsman/sign_in/negotiation.h"
#include "core/runtime_error.h"
#include "sample_network/wire/certificate_authority.h"
#include "sample_network/wire/negotiate_acceptor.h"
#include "sample_network/wire/user_list.h"

namespace tessarine::sample {
namespace {

// How a sign-in ends whose two sides see these channels.
Handshake signed_in(const std::string& client, const std::string& host) {
    Negotiation negotiation(
        "127.0.0.1", Credentials{std::string(kSampleDomain) + "\\" + kSampleUser, kSamplePassword},
        client);
    NegotiateAcceptor acceptor(host);
    NegotiateAcceptor::Step step{Handshake::GoesOn, ""};
    while (step.handshake == Handshake::GoesOn)
        step = acceptor.accept("Negotiate " + encode_base64(negotiation.next_token(step.token)));
    return step.handshake;
}

TEST(ChannelBinding, IsNoticedWhenWrongOrMissing) {
    const UserList users;
    EXPECT_EQ(signed_in("tls-server-end-point:host", "tls-server-end-point:host"),
              Handshake::Complete);
    EXPECT_EQ(signed_in("tls-server-end-point:man in the middle", "tls-server-end-point:host"),
              Handshake::Refused);
    EXPECT_EQ(signed_in("", "tls-server-end-point:host"), Handshake::Refused);
    EXPECT_EQ(signed_in("tls-server-end-point:host", ""), Handshake::Complete);
}

TEST(ChannelBinding, IsTheHashOfTheCertificate) {
    const TlsIdentity identity = CertificateAuthority().identity({"host.example", "127.0.0.1"});
    unsigned char* bytes = nullptr;
    const int length = i2d_X509(identity.certificate.get(), &bytes);
    std::string hash(SHA256_DIGEST_LENGTH, '\0');
    SHA256(bytes, static_cast<std::size_t>(length), reinterpret_cast<unsigned char*>(hash.data()));
    OPENSSL_free(bytes);
    EXPECT_EQ(server_end_point_binding(identity.pem()), "tls-server-end-point:" + hash);
    EXPECT_THROW(server_end_point_binding("no certificate"), RuntimeError);
}

}  // namespace
}  // namespace tessarine::sample
