// What GSSAPI says about a failed call.
#pragma once

#include <gssapi/gssapi.h>

#include <string>

namespace tessarine {

/// The texts of both status codes, one after the other, as far as they say anything, in the
/// console's code page. `mechanism` gives the minor code its meaning.
std::string gss_error_text(OM_uint32 major, OM_uint32 minor, gss_OID mechanism = GSS_C_NO_OID);

}  // namespace tessarine
