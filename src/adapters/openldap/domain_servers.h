// The servers of a domain.
#pragma once

#include <string>
#include <vector>

namespace tessarine {

class WalkLink;

/// The DNS name of the domain that the distinguished name ends in (RFC 2247), such as
/// "example.net"; both in UTF-8. Raises a RuntimeError where there is none.
std::string domain_of_name(const std::string& distinguished_name);

/// The domain's servers as NAME:PORT, the ones to try first in front: those that DNS has a service
/// record for (RFC 2782), else the host of the domain's own name. Raises a RuntimeError where there
/// is none. Waits as long as DNS does.
std::vector<std::string> servers_of_domain(const std::string& domain, WalkLink& link);

}  // namespace tessarine
