#include "sample_network/smb_hosts.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>

namespace tessarine::sample {
namespace {

// Loopback has no broadcasts, by which the browse list is found.
constexpr const char* kMakeInterface =
    "ip link add smb0 type veth peer name smb1 && ip addr add 10.99.1.1/24 brd + dev smb0 && "
    "ip link set smb0 up && ip link set smb1 up";

void write_configuration(const std::filesystem::path& folder, const std::string& address) {
    std::ofstream file(folder / "smb.conf");
    file << "[global]\nworkgroup = OLDOFFICE\nnetbios name = OLDSRV01\nnetbios aliases = BRANCH03\n"
            "server string = a sample host\ninterfaces = smb0 "
         << address
         << "/8\nbind interfaces only = yes\n"
            "name resolve order = bcast\nserver min protocol = NT1\npreferred master = yes\n"
            "os level = 200\nmap to guest = bad user\nload printers = no\n";
    for (const char* kind : {"lock", "state", "cache", "pid"})
        file << kind << " directory = " << (folder / kind).string() << '\n';
    file << "private dir = " << (folder / "private").string() << '\n'
         << "ncalrpc dir = " << (folder / "rpc").string() << '\n'
         << "nmbd:socket dir = " << (folder / "nmbd").string() << '\n'
         << "log file = " << (folder / "log").string() << '\n';
}

}  // namespace

std::string start_smb_hosts(const HeldSignals& signals, const std::filesystem::path& folder,
                            const std::vector<SampleHost>& hosts, const Texts& environment) {
    const auto master = std::find_if(
        hosts.begin(), hosts.end(), [](const SampleHost& host) { return host.name == "OLDSRV01"; });
    if (master == hosts.end()) return "there is no host OLDSRV01";
    for (const char* program : {"/usr/sbin/nmbd", "/usr/sbin/smbd"})
        if (!std::filesystem::exists(program)) return std::string(program) + " is missing";
    if (geteuid() != 0) return "only root can start Samba";
    // NOLINTNEXTLINE(cert-env33-c): a constant, by whoever runs the sample network as root.
    if (std::system(kMakeInterface) != 0) return "it gets no interface";
    for (const char* kind : {"lock", "state", "cache", "pid", "private", "rpc", "nmbd"})
        std::filesystem::create_directories(folder / kind);
    // Samba reads its own files as nobody where a guest asks.
    std::filesystem::permissions(folder, std::filesystem::perms(0755));
    // The hosts file leads whoever asks the master to the address of the sample host.
    write_configuration(folder, master->address);
    for (const char* program : {"/usr/sbin/nmbd", "/usr/sbin/smbd"})
        signals.start({"setsid", program, "--foreground", "--no-process-group",
                       "--configfile=" + (folder / "smb.conf").string()},
                      environment);
    return "";
}

}  // namespace tessarine::sample
