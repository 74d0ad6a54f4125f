// The security mechanisms of a sign-in, as GSSAPI names them.
#pragma once

#include <gssapi/gssapi.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace tessarine {

/// An object identifier in its encoded form, with room to be pointed at.
template <std::size_t size>
struct Mechanism {
    std::array<unsigned char, size> bytes;
    gss_OID_desc oid{size, bytes.data()};
    gss_OID_set_desc alone{1, &oid};

    explicit Mechanism(const std::array<unsigned char, size>& encoded) : bytes(encoded) {}
    Mechanism(const Mechanism&) = delete;
    Mechanism& operator=(const Mechanism&) = delete;
};

/// RFC 4178; 1.3.6.1.5.5.2
struct Spnego : Mechanism<6> {
    Spnego() : Mechanism({0x2B, 0x06, 0x01, 0x05, 0x05, 0x02}) {}
};

/// MS-NLMP; 1.3.6.1.4.1.311.2.2.10
struct Ntlm : Mechanism<10> {
    Ntlm() : Mechanism({0x2B, 0x06, 0x01, 0x04, 0x01, 0x82, 0x37, 0x02, 0x02, 0x0A}) {}
};

/// RFC 4121; 1.2.840.113554.1.2.2
struct Kerberos : Mechanism<9> {
    Kerberos() : Mechanism({0x2A, 0x86, 0x48, 0x86, 0xF7, 0x12, 0x01, 0x02, 0x02}) {}
};

inline bool same_mechanism(const gss_OID_desc& left, const gss_OID_desc& right) {
    const auto* bytes = static_cast<const unsigned char*>(left.elements);
    const auto* others = static_cast<const unsigned char*>(right.elements);
    return left.length == right.length && std::equal(bytes, bytes + left.length, others);
}

}  // namespace tessarine
