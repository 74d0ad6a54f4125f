// The walk over what is right below an object.
#pragma once

#include <string>

namespace tessarine {

struct LdapSession;
class WalkLink;

/// Asks for the children of the object of that distinguished name (UTF-8), page by page (RFC 2696),
/// and hands each to the link. References to other servers are passed over. Raises a RuntimeError
/// with the cause in words.
void walk_children(const LdapSession& session, const std::string& name, WalkLink& link);

}  // namespace tessarine
