// Who may ask the hosts, in the form in which the NTLM acceptor reads it.
#pragma once

#include <string>

#include "sample_network/wire/file_descriptor.h"

namespace tessarine::sample {

/// The user of the sample network, and the password: they protect nothing.
inline constexpr const char* kSampleDomain = "SAMPLE";
inline constexpr const char* kSampleUser = "auditor";
inline constexpr const char* kSamplePassword = "Kestrel-4711-over-the-weir";

/// A host in no domain, and the user whom it alone knows, with the same password.
inline constexpr const char* kWorkgroupHost = "WORKSHOP01";
inline constexpr const char* kWorkgroupUser = "operator";

/// The user list of this process, in memory alone: no file has to be removed, however the process
/// ends. It is made known through the variable NTLM_USER_FILE (gss-ntlmssp) of the environment, so
/// make it before other threads read that, and give no child this environment.
class UserList {
  public:
    /// Raises a std::system_error.
    UserList();
    UserList(const UserList&) = delete;
    UserList& operator=(const UserList&) = delete;
    ~UserList();

  private:
    FileDescriptor memory_;
};

}  // namespace tessarine::sample
