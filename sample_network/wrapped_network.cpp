#include "sample_network/wrapped_network.h"

#include <dlfcn.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "sample_network/scratch_file.h"

namespace tessarine::sample {
namespace {

constexpr const char* kSocketWrapper = "libsocket_wrapper.so";
constexpr const char* kNameWrapper = "libnss_wrapper.so";

bool can_be_loaded(const char* library) {
    void* handle = dlopen(library, RTLD_LAZY | RTLD_LOCAL);
    if (handle != nullptr) dlclose(handle);
    return handle != nullptr;
}

std::string preloaded() {
    const char* others = std::getenv("LD_PRELOAD");
    std::string list = std::string(kSocketWrapper) + " " + kNameWrapper;
    return others == nullptr ? list : list + " " + others;
}

std::string system_hosts() {
    std::ifstream file("/etc/hosts");
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace

std::optional<int> run_in_wrapped_network(const HeldSignals& signals, const Texts& arguments,
                                          const std::string& hosts) {
    if (!can_be_loaded(kSocketWrapper) || !can_be_loaded(kNameWrapper)) return std::nullopt;
    const ScratchFolder scratch;
    const std::filesystem::path sockets = scratch.path() / "sockets";
    const std::filesystem::path names = scratch.path() / "hosts";
    std::filesystem::create_directory(sockets);
    std::ofstream(names) << system_hosts() << '\n' << hosts;
    Texts environment;
    for (const std::string& variable : current_environment())
        if (!variable.starts_with("LD_PRELOAD=")) environment.push_back(variable);
    environment.push_back("LD_PRELOAD=" + preloaded());
    environment.push_back("SOCKET_WRAPPER_DIR=" + sockets.string());
    environment.push_back("NSS_WRAPPER_HOSTS=" + names.string());
    return signals.run_command(arguments, environment);
}

}  // namespace tessarine::sample
