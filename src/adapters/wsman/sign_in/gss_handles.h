// GSSAPI (RFC 2744) objects that release themselves, and views on its buffers.
#pragma once

#include <gssapi/gssapi.h>

#include <string>
#include <string_view>

namespace tessarine {

/// Owns one GSSAPI object; `Release` gives it back.
template <typename Handle, auto Release>
class GssHandle {
  public:
    GssHandle() = default;
    GssHandle(const GssHandle&) = delete;
    GssHandle& operator=(const GssHandle&) = delete;
    ~GssHandle() { reset(); }

    Handle get() const { return handle_; }

    /// For calls that make the object or, as with a context, go on with it.
    Handle* address() { return &handle_; }

    void reset() {
        OM_uint32 minor = 0;
        if (handle_ != nullptr) Release(&minor, &handle_);
        handle_ = nullptr;
    }

  private:
    Handle handle_ = nullptr;
};

inline OM_uint32 delete_gss_context(OM_uint32* minor, gss_ctx_id_t* context) {
    return gss_delete_sec_context(minor, context, GSS_C_NO_BUFFER);
}

using GssContext = GssHandle<gss_ctx_id_t, delete_gss_context>;
using GssCredential = GssHandle<gss_cred_id_t, gss_release_cred>;
using GssName = GssHandle<gss_name_t, gss_release_name>;
using GssOidSet = GssHandle<gss_OID_set, gss_release_oid_set>;

/// A buffer that GSSAPI allocated.
class GssBuffer {
  public:
    GssBuffer() = default;
    GssBuffer(const GssBuffer&) = delete;
    GssBuffer& operator=(const GssBuffer&) = delete;
    ~GssBuffer() {
        OM_uint32 minor = 0;
        gss_release_buffer(&minor, &buffer_);
    }

    gss_buffer_t address() { return &buffer_; }
    std::string_view view() const {
        return {static_cast<const char*>(buffer_.value), buffer_.length};
    }
    std::string text() const { return std::string(view()); }

  private:
    gss_buffer_desc buffer_ = GSS_C_EMPTY_BUFFER;
};

/// `bytes` as an input buffer, which GSSAPI only reads.
inline gss_buffer_desc gss_input(std::string_view bytes) {
    return {bytes.size(), const_cast<char*>(bytes.data())};
}

}  // namespace tessarine
