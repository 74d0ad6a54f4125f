// Active Directory and other directories, over OpenLDAP's client library.
#pragma once

#include <chrono>
#include <functional>

#include "platform/directory_service.h"

namespace tessarine {

struct LdapOptions {
    /// Called several times a second while a directory is asked.
    std::function<void()> while_waiting;
    /// How long DNS or a server may say nothing.
    std::chrono::seconds silence{10};
};

/// The server of a path that has none is found by DNS. The running user's Kerberos ticket is what
/// he signs in with; without one nobody signs in.
class LdapDirectoryService final : public DirectoryService {
  public:
    explicit LdapDirectoryService(LdapOptions options);

    std::unique_ptr<DirectoryObject> bind(const std::string& path) override;

  private:
    LdapOptions options_;
};

}  // namespace tessarine
