#include "sample_network/directory_server.h"

#include "sample_network/directory_files.h"

namespace tessarine::sample {

bool start_directory(const HeldSignals& signals, const std::filesystem::path& folder,
                     const std::vector<SampleHost>& hosts, const Texts& environment) {
    using enum DirectoryFolder::Kind;
    constexpr int kComputers = 2500;
    if (!has_directory_program()) return false;
    Texts servers;
    for (const SampleHost& host : hosts) servers.push_back(host.name);
    write_directory(folder, "sample.example",
                    {{Container, "Builtin", {}},
                     {Container, "Computers", numbered_names("PC", kComputers)},
                     {Unit, "Domain Controllers", {"DC01"}},
                     {Unit, "Servers", servers},
                     {Container, "Users", {"Administrator", "auditor"}}});
    signals.start(directory_command(folder, "127.0.0.9:389"), environment);
    return true;
}

}  // namespace tessarine::sample
