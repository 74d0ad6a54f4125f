#include "sample_network/wire/signed_in_user.h"

#include "adapters/wsman/sign_in/gss_handles.h"

namespace tessarine::sample {

std::string signed_in_user(gss_ctx_id_t context) {
    OM_uint32 minor = 0;
    GssName name;
    GssBuffer text;
    if (GSS_ERROR(gss_inquire_context(&minor, context, name.address(), nullptr, nullptr, nullptr,
                                      nullptr, nullptr, nullptr)) ||
        GSS_ERROR(gss_display_name(&minor, name.get(), text.address(), nullptr)))
        return "";
    // Some count the NUL after the name as a part of it.
    const std::string display_name = text.text();
    return display_name.substr(0, display_name.find('\0'));
}

}  // namespace tessarine::sample
