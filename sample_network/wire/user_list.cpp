#include "sample_network/wire/user_list.h"

#include <sys/mman.h>
#include <sys/stat.h>

#include <cstdlib>

namespace tessarine::sample {
namespace {

constexpr const char* kVariable = "NTLM_USER_FILE";

std::string line_of(const std::string& domain, const std::string& user) {
    return domain + ":" + user + ":" + kSamplePassword + "\n";
}

}  // namespace

UserList::UserList() : memory_(checked(memfd_create("users", MFD_CLOEXEC), "memfd_create")) {
    const std::string lines = line_of(kSampleDomain, kSampleUser) +
                              line_of(kWorkgroupHost, kWorkgroupUser) + line_of("", kWorkgroupUser);
    checked(fchmod(memory_.get(), S_IRUSR | S_IWUSR), "fchmod");
    checked(static_cast<int>(write(memory_.get(), lines.data(), lines.size())), "write");
    setenv(kVariable, ("/proc/self/fd/" + std::to_string(memory_.get())).c_str(), 1);
}

UserList::~UserList() {
    unsetenv(kVariable);
}

}  // namespace tessarine::sample
