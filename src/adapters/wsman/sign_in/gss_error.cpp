#include "adapters/wsman/sign_in/gss_error.h"

#include "adapters/wsman/basics/ascii.h"
#include "adapters/wsman/sign_in/gss_handles.h"
#include "core/code_page.h"

namespace tessarine {
namespace {

std::string status_text(OM_uint32 status, int kind, gss_OID mechanism) {
    std::string text;
    OM_uint32 more = 0;
    do {
        OM_uint32 minor = 0;
        GssBuffer part;
        if (GSS_ERROR(gss_display_status(&minor, status, kind, mechanism, &more, part.address())))
            return text;
        if (!text.empty()) text += ". ";
        append_from_utf8(text, part.view());
    } while (more != 0);
    return text;
}

}  // namespace

std::string gss_error_text(OM_uint32 major, OM_uint32 minor, gss_OID mechanism) {
    std::string text = status_text(major, GSS_C_GSS_CODE, mechanism);
    std::string detail = minor == 0 ? "" : status_text(minor, GSS_C_MECH_CODE, mechanism);
    // Plug-ins often know no more than that.
    if (detail.empty() || same_ascii_text(detail, "Unknown error")) return text;
    // Here the first text says no more than that the second one follows.
    if (GSS_ROUTINE_ERROR(major) == GSS_S_FAILURE) return detail;
    return text + ": " + detail;
}

}  // namespace tessarine
