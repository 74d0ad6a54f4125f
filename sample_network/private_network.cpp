#include "sample_network/private_network.h"

#include <fcntl.h>
#include <net/if.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/wait.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "sample_network/scratch_file.h"
#include "sample_network/wire/file_descriptor.h"

namespace tessarine::sample {
namespace {

constexpr const char* kHostsFile = "/etc/hosts";
constexpr const char* kPortsFile = "/proc/sys/net/ipv4/ip_unprivileged_port_start";
constexpr const char* kNameServiceFile = "/etc/nsswitch.conf";
constexpr const char* kAuthoritiesFile = "/etc/ssl/certs/ca-certificates.crt";

// Root can do without a user namespace, and is then root in every respect.
enum class Namespaces { NetworkAlone, WithUser };

void write_file(const char* path, const std::string& text) {
    const FileDescriptor file(checked(open(path, O_WRONLY | O_CLOEXEC), path));
    checked(static_cast<int>(write(file.get(), text.data(), text.size())), path);
}

std::string read_file(const char* path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

void become_oneself(uid_t user, gid_t group) {
    write_file("/proc/self/setgroups", "deny");
    write_file("/proc/self/uid_map", std::to_string(user) + " " + std::to_string(user) + " 1\n");
    write_file("/proc/self/gid_map", std::to_string(group) + " " + std::to_string(group) + " 1\n");
}

// The loopback interface gets 127.0.0.1/8 by itself.
void start_loopback() {
    const FileDescriptor any(checked(socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0), "socket"));
    ifreq request{};
    std::strcpy(request.ifr_name, "lo");
    request.ifr_flags = IFF_UP | IFF_RUNNING;
    checked(ioctl(any.get(), SIOCSIFFLAGS, &request), "lo");
}

// The servers beside the hosts have ports of root's, whoever runs them. Where that can't be had
// they say so themselves.
void free_low_ports() {
    std::ofstream(kPortsFile) << "0\n";
}

// The file that lies under the new one stays as it is, and the new one is gone from its folder as
// soon as it is mounted.
void cover(const char* path, const std::string& text) {
    const ScratchFile file(text);
    std::filesystem::permissions(file.path(), std::filesystem::perms(0644));
    checked(mount(file.path().c_str(), path, nullptr, MS_BIND, nullptr), path);
}

// Where names are asked from a service, it would answer from outside.
std::string names_from_files(const std::string& name_service) {
    std::string text = "hosts: files\n";
    std::size_t at = 0;
    while (at < name_service.size()) {
        const std::size_t end = std::min(name_service.find('\n', at), name_service.size() - 1) + 1;
        const std::string line = name_service.substr(at, end - at);
        if (!line.starts_with("hosts:")) text += line;
        at = end;
    }
    return text;
}

void enter(Namespaces namespaces, const std::string& hosts, const std::string& authority) {
    const uid_t user = geteuid();
    const gid_t group = getegid();
    const bool with_user = namespaces == Namespaces::WithUser;
    checked(unshare(CLONE_NEWNET | CLONE_NEWNS | (with_user ? CLONE_NEWUSER : 0)), "unshare");
    if (with_user) become_oneself(user, group);
    checked(mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr), "mount");
    start_loopback();
    free_low_ports();
    cover(kHostsFile, read_file(kHostsFile) + "\n" + hosts);
    if (const std::string names = read_file(kNameServiceFile); !names.empty())
        cover(kNameServiceFile, names_from_files(names));
    if (const std::string authorities = read_file(kAuthoritiesFile); !authorities.empty())
        cover(kAuthoritiesFile, authorities + authority);
}

// Tries in a child, as half of it can't be taken back. The text is empty on success.
std::string refusal(Namespaces namespaces, const std::string& hosts, const std::string& authority) {
    int ends[2];
    checked(pipe(ends), "pipe");
    const FileDescriptor reading(ends[0]);
    FileDescriptor writing(ends[1]);
    const pid_t child = checked(fork(), "fork");
    if (child == 0) {
        std::string problem;
        try {
            enter(namespaces, hosts, authority);
        } catch (const std::system_error& error) {
            problem = error.what();
        }
        const ssize_t written = write(writing.get(), problem.data(), problem.size());
        _exit(written < 0 ? 1 : 0);
    }
    writing = FileDescriptor();
    char text[500];
    const ssize_t length = read(reading.get(), text, sizeof text);
    int status = 0;
    waitpid(child, &status, 0);
    if (status != 0 || length < 0) return "the attempt failed";
    return {text, static_cast<std::size_t>(length)};
}

}  // namespace

std::optional<std::string> enter_private_network(const std::string& hosts,
                                                 const std::string& authority) {
    std::string problem;
    for (const auto namespaces : {Namespaces::NetworkAlone, Namespaces::WithUser}) {
        if (namespaces == Namespaces::NetworkAlone && geteuid() != 0) continue;
        problem = refusal(namespaces, hosts, authority);
        if (!problem.empty()) continue;
        enter(namespaces, hosts, authority);
        return std::nullopt;
    }
    return problem;
}

}  // namespace tessarine::sample
