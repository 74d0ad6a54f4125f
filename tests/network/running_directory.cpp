#include "network/running_directory.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <stdexcept>
#include <thread>

#include "adapters/openldap/ldap_directory_service.h"
#include "core/runtime_error.h"
#include "sample_network/wire/connection_server.h"

namespace tessarine {
namespace {

// A port that has just been free.
std::uint16_t free_port() {
    return sample::ConnectionServer("127.0.0.1", 0, [](sample::Connection&) {}).port();
}

// A refusal is an answer too.
bool answers(const std::string& path) {
    try {
        LdapDirectoryService({}).bind(path);
        return true;
    } catch (const RuntimeError& error) {
        return !error.description().starts_with("No directory server answers");
    }
}

}  // namespace

RunningDirectory::RunningDirectory(const std::vector<sample::DirectoryFolder>& content,
                                   std::string_view settings)
    : place_("127.0.0.1:" + std::to_string(free_port())) {
    sample::write_directory(scratch_.path(), "example.net", content, settings);
    const sample::Texts command = sample::directory_command(scratch_.path(), place_);
    std::vector<char*> arguments;
    for (const std::string& text : command) arguments.push_back(const_cast<char*>(text.c_str()));
    arguments.push_back(nullptr);
    if (posix_spawn(&process_, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0)
        throw std::runtime_error("slapd can't be started");
    for (int i = 0; i < 200 && !answers(path_of("DC=example,DC=net")); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
}

RunningDirectory::~RunningDirectory() {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
}

}  // namespace tessarine
