#include "adapters/wsman/basics/host_address.h"

#include <arpa/inet.h>

#include <algorithm>

#include "adapters/wsman/basics/ascii.h"
#include "adapters/wsman/basics/failure.h"

namespace tessarine {
namespace {

constexpr std::size_t kLongestName = 255;

bool is_name_character(char c) {
    return is_ascii_letter(c) || is_ascii_digit(c) || c == '-' || c == '.' || c == '_';
}

bool is_ipv6(const std::string& host) {
    in6_addr address;
    return inet_pton(AF_INET6, host.c_str(), &address) == 1;
}

}  // namespace

std::string HostAddress::url() const {
    const std::string in_url = is_ipv6(host) ? "[" + host + "]" : host;
    const char* scheme = protection == Protection::Tls ? "https://" : "http://";
    return scheme + in_url + ":" + std::to_string(port) + "/wsman";
}

bool is_ip_address(const std::string& host) {
    in_addr address;
    return inet_pton(AF_INET, host.c_str(), &address) == 1 || is_ipv6(host);
}

HostAddress make_host_address(const std::string& host, int port, Protection protection) {
    const bool is_name = !host.empty() && host.size() <= kLongestName &&
                         std::all_of(host.begin(), host.end(), is_name_character);
    if (!is_name && !is_ipv6(host))
        raise_failure("This is no host name or address: \"" + host.substr(0, kLongestName) + "\"");
    return {host, port, protection};
}

}  // namespace tessarine
