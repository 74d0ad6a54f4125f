#include "adapters/openldap/domain_servers.h"

#include <netdb.h>
#include <sys/socket.h>

#include <sstream>

#include "adapters/openldap/directory_text.h"
#include "adapters/openldap/ldap_handles.h"
#include "adapters/openldap/limits.h"
#include "adapters/openldap/walk_link.h"
#include "core/code_page.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

constexpr std::size_t kLongestDomain = 253;
constexpr std::size_t kMostServers = directory_limits::kServers;

bool is_domain(std::string_view text) {
    return is_server_name(text) && text.size() <= kLongestDomain && text.front() != '.' &&
           text.back() != '.' && text.find("..") == std::string_view::npos;
}

bool is_known_host(const std::string& name) {
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    if (getaddrinfo(name.c_str(), "389", &hints, &found) != 0) return false;
    freeaddrinfo(found);
    return true;
}

}  // namespace

std::string domain_of_name(const std::string& distinguished_name) {
    char* text = nullptr;
    const bool is_name = ldap_dn2domain(distinguished_name.c_str(), &text) == 0;
    const LdapText owner(text);
    if (!is_name)
        throw RuntimeError(ErrorNumber::Failed,
                           "\"" + from_utf8(distinguished_name) +
                               "\" is no name in a directory: a comma, plus, quote, backslash, "
                               "less, greater or semicolon in it takes a backslash in front of it");
    std::string domain(view_of(owner));
    if (!is_domain(domain))
        throw RuntimeError(ErrorNumber::Failed, "\"" + from_utf8(domain) +
                                                    "\" is no domain: type its name into the two "
                                                    "fields, such as example and net");
    return domain;
}

std::vector<std::string> servers_of_domain(const std::string& domain, WalkLink& link) {
    link.ask("DNS");
    char* text = nullptr;
    std::vector<std::string> servers;
    if (ldap_domain2hostlist(domain.c_str(), &text) == LDAP_SUCCESS) {
        const LdapText owner(text);
        std::istringstream words{std::string(view_of(owner))};
        for (std::string server; words >> server;)
            if (is_server_name(server) && servers.size() < kMostServers) servers.push_back(server);
    }
    link.heard();
    if (servers.empty() && is_known_host(domain)) servers.push_back(domain);
    if (servers.empty())
        throw RuntimeError(ErrorNumber::Failed, "No server for the domain " + from_utf8(domain) +
                                                    " is known: DNS has neither _ldap._tcp." +
                                                    from_utf8(domain) +
                                                    " nor a host of the domain's own name");
    return servers;
}

}  // namespace tessarine
