#include "adapters/openldap/ldap_session.h"

#include <sasl/sasl.h>

#include "adapters/openldap/directory_text.h"
#include "adapters/openldap/kerberos_ticket.h"
#include "adapters/openldap/limits.h"
#include "core/code_page.h"
#include "core/runtime_error.h"
#include "core/text.h"

namespace tessarine {
namespace {

using std::chrono::seconds;

// Sealed by at least the weakest of Kerberos' ciphers.
constexpr const char* kSealed = "noanonymous,noplain,minssf=56";

[[noreturn]] void fail(const std::string& words) {
    throw RuntimeError(ErrorNumber::Failed, words);
}

// Nobody is there to be asked: each question gets its default, or nothing.
int answer_nothing(LDAP*, unsigned, void*, void* questions) {
    for (auto* each = static_cast<sasl_interact_t*>(questions); each->id != SASL_CB_LIST_END;
         ++each) {
        each->result = each->defresult == nullptr ? "" : each->defresult;
        each->len = static_cast<unsigned>(
            std::string_view(each->defresult == nullptr ? "" : each->defresult).size());
    }
    return LDAP_SUCCESS;
}

void bound_messages(LDAP* connection) {
    Sockbuf* buffer = nullptr;
    ber_len_t most = directory_limits::kMessage;
    ldap_get_option(connection, LDAP_OPT_SOCKBUF, &buffer);
    if (buffer != nullptr) ber_sockbuf_ctrl(buffer, LBER_SB_OPT_SET_MAX_INCOMING, &most);
}

LdapConnection new_connection(const std::string& server, seconds silence) {
    LDAP* made = nullptr;
    if (ldap_initialize(&made, ("ldap://" + server).c_str()) != LDAP_SUCCESS) return nullptr;
    LdapConnection connection(made);
    constexpr int kVersion = LDAP_VERSION3;
    const timeval connect{directory_limits::kConnect.count(), 0};
    const timeval answer{silence.count(), 0};
    ldap_set_option(made, LDAP_OPT_PROTOCOL_VERSION, &kVersion);
    ldap_set_option(made, LDAP_OPT_NETWORK_TIMEOUT, &connect);
    ldap_set_option(made, LDAP_OPT_TIMEOUT, &answer);
    ldap_set_option(made, LDAP_OPT_REFERRALS, LDAP_OPT_OFF);
    // Kerberos gets the name that we know the server by, and not one that somebody's DNS makes of
    // it.
    ldap_set_option(made, LDAP_OPT_X_SASL_NOCANON, LDAP_OPT_ON);
    ldap_set_option(made, LDAP_OPT_X_SASL_SECPROPS, kSealed);
    bound_messages(made);
    return connection;
}

// Nothing where the server doesn't answer.
LdapConnection connect(const std::string& server, seconds silence, WalkLink& link) {
    link.ask(from_utf8(server));
    LdapConnection connection = new_connection(server, silence);
    if (!connection || ldap_connect(connection.get()) != LDAP_SUCCESS) return nullptr;
    link.heard();
    return connection;
}

// Lets the link end what waits for this connection.
void lend_socket(LdapSession& session, WalkLink& link) {
    int socket = -1;
    ldap_get_option(session.connection.get(), LDAP_OPT_DESC, &socket);
    link.use_socket(socket);
    session.socket_use.reset(&link);
}

// The innermost of the words for why the sign-in failed: what stands in the last brackets.
std::string kerberos_words(LDAP* connection, int code) {
    char* text = nullptr;
    ldap_get_option(connection, LDAP_OPT_DIAGNOSTIC_MESSAGE, &text);
    const LdapText owner(text);
    std::string_view words = view_of(owner);
    constexpr std::string_view kMore = "more information (";
    if (const std::size_t more = words.find(kMore); more != std::string_view::npos) {
        words.remove_prefix(more + kMore.size());
        words = words.substr(0, words.rfind(')'));
    }
    return directory_words(words.empty() ? ldap_err2string(code) : words);
}

// Why it has failed; empty for success.
std::string sign_in(const LdapSession& session) {
    LDAP* connection = session.connection.get();
    const int code = ldap_sasl_interactive_bind_s(connection, nullptr, "GSSAPI", nullptr, nullptr,
                                                  LDAP_SASL_QUIET, answer_nothing, nullptr);
    if (code == LDAP_SUCCESS) return {};
    if (code == LDAP_AUTH_UNKNOWN)
        return "this machine can't sign in by Kerberos: install libsasl2-modules-gssapi-mit";
    if (code == LDAP_AUTH_METHOD_NOT_SUPPORTED)
        return session.server + " offers no sign-in by Kerberos";
    return "the sign-in by Kerberos at " + session.server +
           " failed: " + kerberos_words(connection, code);
}

std::string kinit_words(const std::string& domain) {
    return domain.empty() ? ": run kinit" : ": run kinit USER@" + upper_text(from_utf8(domain));
}

}  // namespace

LdapSession open_ldap_session(const std::vector<std::string>& servers, const std::string& domain,
                              seconds silence, WalkLink& link) {
    LdapSession session;
    std::string names;
    for (const std::string& server : servers) {
        session.server = from_utf8(server);
        names += (names.empty() ? "" : ", ") + session.server;
        session.connection = connect(server, silence, link);
        if (session.connection) break;
    }
    if (!session.connection) fail("No directory server answers: " + names);
    lend_socket(session, link);
    const KerberosTicket ticket = kerberos_ticket();
    if (ticket.state == TicketState::None)
        session.anonymous_because = "the running user has no Kerberos ticket" + kinit_words(domain);
    else if (ticket.state == TicketState::Expired)
        session.anonymous_because =
            "the running user's Kerberos ticket has expired" + kinit_words(domain);
    else
        session.anonymous_because = sign_in(session);
    link.heard();
    // A server of the user's own domain that can't take the ticket may be another's.
    if (ticket.state == TicketState::Valid && !session.anonymous_because.empty() &&
        is_realm_of(ticket.realm, domain))
        fail("With a ticket of " + from_utf8(ticket.realm) +
             " nothing is read without its seal, and " + session.anonymous_because);
    return session;
}

}  // namespace tessarine
