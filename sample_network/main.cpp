// The sample network: several Windows hosts, for trying the console and for tests.

#include <gssapi/gssapi_krb5.h>

#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>

#include "adapters/system/freed_memory.h"
#include "sample_network/built_in_hosts.h"
#include "sample_network/command.h"
#include "sample_network/desk.h"
#include "sample_network/directory_server.h"
#include "sample_network/faults/fault_hosts.h"
#include "sample_network/mail_server.h"
#include "sample_network/options.h"
#include "sample_network/private_network.h"
#include "sample_network/sample_network.h"
#include "sample_network/scratch_file.h"
#include "sample_network/smb_hosts.h"
#include "sample_network/wire/discovery_answerer.h"
#include "sample_network/wire/user_list.h"
#include "sample_network/wrapped_network.h"

namespace tessarine::sample {
namespace {

constexpr int kOwnFailure = 125;

std::vector<SampleHost> hosts_for(const Options& options) {
    const Instant newest =
        options.today
            ? Instant{*options.today} + std::chrono::hours(18)
            : std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
    std::vector<SampleHost> hosts = options.events.empty()
                                        ? built_in_hosts(newest, options.large_count)
                                        : hosts_from_files(options.events);
    if (options.faulty) add_faulty_hosts(hosts, newest);
    for (const std::string& fault : options.faults) plan_fault(hosts, fault);
    if (!options.only.empty()) hosts = only_hosts(hosts, options.only);
    for (SampleHost& host : hosts)
        if (options.tls && host.state == HostState::Running) host.state = HostState::TlsOnly;
    return hosts;
}

void describe(const std::vector<SampleHost>& hosts) {
    for (const SampleHost& host : hosts)
        std::cerr << host.address << '\t' << host.name << '\t' << host.description << '\n';
    std::cerr << "User " << kSampleDomain << '\\' << kSampleUser << ", password " << kSamplePassword
              << "; at " << kWorkgroupHost << " its own user " << kWorkgroupUser << '\n';
}

void use_keytab(const std::string& file) {
    if (krb5_gss_register_acceptor_identity(file.c_str()) != GSS_S_COMPLETE)
        throw std::runtime_error("Can't use the keytab " + file);
}

Texts command_of(const Options& options) {
    if (!options.shell) return options.command;
    const char* shell = std::getenv("SHELL");
    return {shell == nullptr ? "/bin/sh" : shell};
}

int serve_loopback(const Options& options, const HeldSignals& signals) {
    const UserList users;
    const CertificateAuthority authority;
    SampleNetwork network(hosts_for(options), authority);
    for (const std::string& place : network.listen_loopback(*options.loopback_port))
        std::cout << place << '\n';
    std::cout << std::flush;
    signals.wait_for_end(true);
    return EXIT_SUCCESS;
}

void serve_mail(const Options& options, const HeldSignals& signals, const Texts& environment) {
    const std::filesystem::path folder = options.desk / "mail";
    const bool started = start_mail_server(signals, folder, environment);
    if (options.quiet) return;
    if (started)
        std::cerr << "The mail server " << kMailServer << " puts mails into "
                  << (folder / "new").string() << '\n';
    else
        std::cerr << "No mail server: aiosmtpd is missing\n";
}

void serve_directory(const Options& options, const HeldSignals& signals,
                     const std::vector<SampleHost>& hosts, const Texts& environment) {
    const bool started = start_directory(signals, options.desk / "directory", hosts, environment);
    if (options.quiet) return;
    if (started)
        std::cerr << "Hosts > Enumerate Active Directory takes the domain sample and example; the "
                     "hosts are in the Organizational Unit Servers, and the Container Computers "
                     "has 2,500 others\n";
    else
        std::cerr << "No directory: slapd is missing\n";
}

// The names are in the hosts file, so that the console can audit what it finds.
std::unique_ptr<DiscoveryAnswerer> answer_discovery(const Options& options,
                                                    const std::vector<SampleHost>& hosts) {
    std::unique_ptr<DiscoveryAnswerer> answerer;
    std::string said = "The hosts answer Hosts > Enumerate Lan (WS-Discovery)";
    try {
        answerer = std::make_unique<DiscoveryAnswerer>(hosts);
    } catch (const std::system_error& error) {
        said = std::string("No host answers Hosts > Enumerate Lan here: ") + error.what();
    }
    if (!options.quiet) std::cerr << said << '\n';
    return answerer;
}

void serve_smb(const Options& options, const HeldSignals& signals, const ScratchFolder& folder,
               const std::vector<SampleHost>& hosts, const Texts& environment) {
    const std::string problem = start_smb_hosts(signals, folder.path(), hosts, environment);
    if (options.quiet) return;
    if (problem.empty())
        std::cerr << "In half a minute the browse list of SMB 1 has the group OLDOFFICE\n";
    else
        std::cerr << "No browse list of SMB 1: " << problem << '\n';
}

int serve(const Options& options, const HeldSignals& signals, const std::vector<SampleHost>& hosts,
          const CertificateAuthority& authority, DownHosts down_hosts) {
    // The command must not find the hosts' user list in its environment.
    const Texts environment = current_environment();
    const UserList users;
    SampleNetwork network(hosts, authority);
    network.listen(down_hosts);
    if (!options.quiet) describe(hosts);
    const auto answerer = answer_discovery(options, hosts);
    const ScratchFolder smb_folder;
    if (!options.desk.empty()) {
        serve_mail(options, signals, environment);
        serve_directory(options, signals, hosts, environment);
        serve_smb(options, signals, smb_folder, hosts, environment);
    }
    const Texts command = command_of(options);
    if (!command.empty()) return signals.run_command(command, environment);
    std::cerr << "Running until Ctrl-C\n";
    signals.wait_for_end(false);
    return EXIT_SUCCESS;
}

// This very call once more, inside the wrapper libraries.
int serve_wrapped(const HeldSignals& signals, const Texts& arguments, const std::string& hosts) {
    Texts inside = {std::filesystem::read_symlink("/proc/self/exe"), "--network", "present"};
    inside.insert(inside.end(), arguments.begin(), arguments.end());
    const auto status = run_in_wrapped_network(signals, inside, hosts);
    if (!status) throw std::runtime_error("libsocket-wrapper or libnss-wrapper is missing");
    return *status;
}

int run(const Options& options, const Texts& arguments) {
    keep_freed_memory();
    if (!options.keytab.empty()) use_keytab(options.keytab);
    const HeldSignals signals;
    if (options.loopback_port) return serve_loopback(options, signals);
    const std::vector<SampleHost> hosts = hosts_for(options);
    const CertificateAuthority authority;
    if (options.network == NetworkChoice::Present)
        return serve(options, signals, hosts, authority, DownHosts::Absent);
    if (!options.desk.empty()) prepare_desk(options.desk, hosts);
    const auto say = [&](const std::string& text) {
        if (!options.quiet) std::cerr << text << '\n';
    };
    const std::string names = hosts_file_lines(hosts) + kMailServerLine + kDirectoryLine;
    if (options.network != NetworkChoice::Wrapped) {
        const auto problem = enter_private_network(names, authority.pem());
        if (!problem) {
            say("Using a private network");
            return serve(options, signals, hosts, authority, DownHosts::Silent);
        }
        if (options.network == NetworkChoice::Private) throw std::runtime_error(*problem);
        say("No private network here: " + *problem);
    }
    say("Using the wrapper libraries: nobody trusts the hosts with TLS here");
    return serve_wrapped(signals, arguments, names);
}

}  // namespace
}  // namespace tessarine::sample

int main(int count, char** values) try {
    const tessarine::sample::Texts arguments(values + 1, values + count);
    const auto options = tessarine::sample::parse_options(arguments);
    if (options.help) {
        std::cout << tessarine::sample::kHelp;
        return EXIT_SUCCESS;
    }
    if (options.list_faults) {
        std::cout << tessarine::sample::fault_list();
        return EXIT_SUCCESS;
    }
    return tessarine::sample::run(options, arguments);
} catch (const std::exception& error) {
    std::cerr << "tessarine-sample-network: " << error.what() << '\n';
    return tessarine::sample::kOwnFailure;
}
