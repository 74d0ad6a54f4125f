// The event sources that one contract holds for, each with a host of a test's making behind it.
#pragma once

#include <list>
#include <memory>
#include <string>

#include "adapters/wsman/wsman_event_source.h"
#include "fakes/scripted_hosts.h"
#include "sample_network/sample_network.h"
#include "sample_network/wire/user_list.h"

namespace tessarine::contract {

inline const std::string kUser =
    std::string(sample::kSampleDomain) + "\\" + std::string(sample::kSampleUser);
inline constexpr const char* kWrongPassword = "Wrong-Canary-1";

/// The source of the logic's tests.
class FakePeer {
  public:
    std::unique_ptr<EventService> connect(const fakes::ScriptedHost& host,
                                          const std::string& user = kUser);
    std::unique_ptr<EventService> connect_with_a_wrong_password();
    std::unique_ptr<EventService> connect_to_nobody();

  private:
    fakes::ScriptedHosts source_;
};

/// The console's own source. A host's record that fails takes with it those of the same answer.
class WirePeer {
  public:
    std::unique_ptr<EventService> connect(const fakes::ScriptedHost& host,
                                          const std::string& user = kUser);
    std::unique_ptr<EventService> connect_with_a_wrong_password();
    std::unique_ptr<EventService> connect_to_nobody();

  private:
    std::unique_ptr<EventService> connect(const fakes::ScriptedHost& host,
                                          const Credentials& credentials);

    sample::UserList users_;
    sample::CertificateAuthority authority_;
    std::list<sample::SampleNetwork> networks_;
};

}  // namespace tessarine::contract
