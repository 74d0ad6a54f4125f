#include "adapters/openldap/ldap_directory_service.h"

#include <pthread.h>

#include <csignal>
#include <exception>
#include <system_error>
#include <thread>
#include <utility>

#include "adapters/openldap/directory_text.h"
#include "adapters/openldap/domain_servers.h"
#include "adapters/openldap/ldap_session.h"
#include "adapters/openldap/ldap_walk.h"
#include "adapters/openldap/walk_link.h"
#include "core/code_page.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

void walk(const DirectoryPath& path, std::chrono::seconds silence, WalkLink& link) {
    const std::string name = to_utf8(path.name);
    std::string domain;
    std::vector<std::string> servers{path.server};
    if (path.server.empty()) {
        domain = domain_of_name(name);
        servers = servers_of_domain(domain, link);
    }
    walk_children(open_ldap_session(servers, domain, silence, link), name, link);
}

// The whole life of the thread that talks.
void talk(const DirectoryPath& path, std::chrono::seconds silence, WalkLink& link) {
    // A server that has gone is an error, and no end of the program.
    sigset_t broken_pipe;
    sigemptyset(&broken_pipe);
    sigaddset(&broken_pipe, SIGPIPE);
    pthread_sigmask(SIG_BLOCK, &broken_pipe, nullptr);
    try {
        walk(path, silence, link);
        link.finish();
    } catch (const std::exception& error) {
        link.fail(error.what());
    }
}

class LdapObject final : public DirectoryObject {
  public:
    LdapObject(const DirectoryPath& path, const LdapOptions& options)
        : while_waiting_(options.while_waiting),
          link_(std::make_shared<WalkLink>(options.silence)) {
        try {
            // What waits for DNS can't be called back: it is left to itself, and ends by itself.
            std::thread([path, silence = options.silence, link = link_] {
                talk(path, silence, *link);
            }).detach();
        } catch (const std::system_error& error) {
            throw RuntimeError(ErrorNumber::Failed,
                               std::string("The directory can't be asked: ") + error.what());
        }
    }
    ~LdapObject() override { link_->stop(); }

    void wait_for_first() { link_->wait_for_first(while_waiting_); }
    bool next(DirectoryChild& child) override { return link_->take(child, while_waiting_); }

  private:
    std::function<void()> while_waiting_;
    std::shared_ptr<WalkLink> link_;
};

}  // namespace

LdapDirectoryService::LdapDirectoryService(LdapOptions options) : options_(std::move(options)) {}

std::unique_ptr<DirectoryObject> LdapDirectoryService::bind(const std::string& path) {
    auto object = std::make_unique<LdapObject>(parse_directory_path(path), options_);
    // A server tells only then that there is no such object.
    object->wait_for_first();
    return object;
}

}  // namespace tessarine
