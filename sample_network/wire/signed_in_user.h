// Who a security context belongs to.
#pragma once

#include <gssapi/gssapi.h>

#include <string>

namespace tessarine::sample {

/// The client of an established context, such as DOMAIN\user; empty when it has no name.
std::string signed_in_user(gss_ctx_id_t context);

}  // namespace tessarine::sample
