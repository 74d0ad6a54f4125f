// Owners of what libldap hands out.
#pragma once

#include <ldap.h>

#include <memory>
#include <string>
#include <string_view>

namespace tessarine {

struct LdapRelease {
    void operator()(LDAP* connection) const { ldap_unbind_ext(connection, nullptr, nullptr); }
    void operator()(LDAPMessage* message) const { ldap_msgfree(message); }
    void operator()(LDAPControl* control) const { ldap_control_free(control); }
    void operator()(LDAPControl** controls) const { ldap_controls_free(controls); }
    void operator()(berval** values) const { ldap_value_free_len(values); }
    void operator()(char* text) const { ldap_memfree(text); }
};

using LdapConnection = std::unique_ptr<LDAP, LdapRelease>;
using LdapMessage = std::unique_ptr<LDAPMessage, LdapRelease>;
using LdapText = std::unique_ptr<char, LdapRelease>;

inline std::string_view view_of(const berval& value) {
    return value.bv_val == nullptr ? std::string_view()
                                   : std::string_view(value.bv_val, value.bv_len);
}

inline std::string_view view_of(const LdapText& text) {
    return text ? std::string_view(text.get()) : std::string_view();
}

}  // namespace tessarine
