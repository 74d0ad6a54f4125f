#include "adapters/openldap/ldap_walk.h"

#include <optional>

#include "adapters/openldap/directory_text.h"
#include "adapters/openldap/ldap_session.h"
#include "adapters/openldap/limits.h"
#include "adapters/openldap/walk_link.h"
#include "core/code_page.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

[[noreturn]] void fail(const std::string& words) {
    throw RuntimeError(ErrorNumber::Failed, words);
}

// The first value of a property; empty where there is none.
std::string first_name(LDAP* connection, LDAPMessage* entry, const char* property) {
    const std::unique_ptr<berval*, LdapRelease> values(
        ldap_get_values_len(connection, entry, property));
    return values && *values ? directory_name(view_of(**values)) : std::string();
}

class Walk {
  public:
    Walk(const LdapSession& session, const std::string& name, WalkLink& link)
        : session_(session), connection_(session.connection.get()), name_(name), link_(link) {}

    void run() {
        int empty_pages = 0;
        do {
            const int before = children_;
            read_page(ask_for_page());
            empty_pages = children_ == before ? empty_pages + 1 : 0;
            if (empty_pages > directory_limits::kEmptyPages)
                fail(session_.server + " sends pages without end and nothing on them");
        } while (!cookie_.empty());
    }

  private:
    int ask_for_page() {
        berval cookie{cookie_.size(), cookie_.data()};
        LDAPControl* made = nullptr;
        ldap_create_page_control(connection_, directory_limits::kPage,
                                 cookie_.empty() ? nullptr : &cookie, 0, &made);
        const std::unique_ptr<LDAPControl, LdapRelease> page(made);
        LDAPControl* controls[] = {page.get(), nullptr};
        char cn[] = "cn";
        char ou[] = "ou";
        char* properties[] = {cn, ou, nullptr};
        int request = 0;
        const int code =
            ldap_search_ext(connection_, name_.c_str(), LDAP_SCOPE_ONELEVEL, "(objectClass=*)",
                            properties, 0, controls, nullptr, nullptr, LDAP_NO_LIMIT, &request);
        if (code != LDAP_SUCCESS) fail_of_connection(code);
        return request;
    }

    void read_page(int request) {
        while (true) {
            LDAPMessage* received = nullptr;
            timeval pause{1, 0};
            const int kind = ldap_result(connection_, request, LDAP_MSG_ONE, &pause, &received);
            const LdapMessage message(received);
            if (kind < 0) fail_of_connection(last_code());
            if (kind == 0) continue;
            link_.heard();
            if (kind == LDAP_RES_SEARCH_RESULT) return end_page(message.get());
            kind == LDAP_RES_SEARCH_ENTRY ? take_child(message.get()) : pass_over();
        }
    }

    void take_child(LDAPMessage* entry) {
        if (++children_ > directory_limits::kChildren)
            fail("The directory has more than " + std::to_string(directory_limits::kChildren) +
                 " objects there");
        link_.add({first_name(connection_, entry, "cn"), first_name(connection_, entry, "ou")});
    }

    void pass_over() {
        if (++others_ > directory_limits::kOtherMessages)
            fail(session_.server + " refers to other servers without end");
    }

    void end_page(LDAPMessage* result) {
        int code = LDAP_OTHER;
        char* text = nullptr;
        LDAPControl** made = nullptr;
        if (ldap_parse_result(connection_, result, &code, nullptr, &text, nullptr, &made, 0) !=
            LDAP_SUCCESS)
            fail_of_connection(LDAP_DECODING_ERROR);
        const LdapText words(text);
        const std::unique_ptr<LDAPControl*, LdapRelease> controls(made);
        if (code != LDAP_SUCCESS) fail_of_refusal(code, directory_words(view_of(words)));
        cookie_ = cookie_of(controls.get());
    }

    // Empty after the last page, and from a server without pages.
    std::string cookie_of(LDAPControl** controls) {
        LDAPControl* page = ldap_control_find(LDAP_CONTROL_PAGEDRESULTS, controls, nullptr);
        berval cookie{};
        ber_int_t estimate = 0;
        if (page == nullptr ||
            ldap_parse_pageresponse_control(connection_, page, &estimate, &cookie) != LDAP_SUCCESS)
            return {};
        std::string bytes(view_of(cookie));
        ber_memfree(cookie.bv_val);
        return bytes;
    }

    int last_code() {
        int code = LDAP_OTHER;
        ldap_get_option(connection_, LDAP_OPT_RESULT_CODE, &code);
        return code;
    }

    [[noreturn]] void fail_of_connection(int code) {
        if (code == LDAP_SERVER_DOWN || code == LDAP_UNAVAILABLE)
            fail(session_.server + " broke off the connection");
        if (code == LDAP_DECODING_ERROR) fail(session_.server + " sent what is no LDAP");
        fail("The directory can't be asked: " + std::string(ldap_err2string(code)));
    }

    [[noreturn]] void fail_of_refusal(int code, const std::string& words) {
        const std::string reason =
            ldap_err2string(code) + (words.empty() ? std::string() : ": " + words);
        switch (code) {
            case LDAP_NO_SUCH_OBJECT:
                fail("The directory has no \"" + from_utf8(name_) +
                     "\": check the name, and whether it is a container or an organizational "
                     "unit");
            case LDAP_REFERRAL:
                fail(session_.server + " leaves \"" + from_utf8(name_) +
                     "\" to another server: check the domain");
            case LDAP_SIZELIMIT_EXCEEDED:
            case LDAP_ADMINLIMIT_EXCEEDED:
                fail(session_.server + " gives no more than these: its size limit is reached");
            case LDAP_OPERATIONS_ERROR:
            case LDAP_STRONG_AUTH_REQUIRED:
            case LDAP_CONFIDENTIALITY_REQUIRED:
            case LDAP_INAPPROPRIATE_AUTH:
            case LDAP_INSUFFICIENT_ACCESS:
            case LDAP_UNWILLING_TO_PERFORM:
                if (!session_.anonymous_because.empty())
                    fail("The directory wants a sign-in, and " + session_.anonymous_because + " (" +
                         reason + ")");
                [[fallthrough]];
            default:
                fail("The directory refused: " + reason);
        }
    }

    const LdapSession& session_;
    LDAP* connection_;
    const std::string& name_;
    WalkLink& link_;
    std::string cookie_;
    int children_ = 0;
    int others_ = 0;
};

}  // namespace

void walk_children(const LdapSession& session, const std::string& name, WalkLink& link) {
    Walk(session, name, link).run();
}

}  // namespace tessarine
