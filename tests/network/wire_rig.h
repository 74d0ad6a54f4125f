// The console's own event source and files, with sample hosts in the same process at the other end.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <vector>

#include "adapters/system/local_files.h"
#include "adapters/wsman/wsman_event_source.h"
#include "app/events.h"
#include "audit/audit_host.h"
#include "core/console_state.h"
#include "fakes/rig.h"
#include "sample_network/sample_network.h"
#include "sample_network/wire/user_list.h"

namespace tessarine {

/// A folder that goes with the object.
class ScratchFolder {
  public:
    ScratchFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "tessarine-XXXXXX").string();
        path_ = ::mkdtemp(name.data());
    }
    ~ScratchFolder() { std::filesystem::remove_all(path_); }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

/// Audits go to the host's address, which so is its name in the store as well.
class WireRig {
  public:
    explicit WireRig(std::vector<sample::SampleHost> hosts)
        : network_(std::move(hosts), authority_) {
        for (const std::string& place : network_.listen_loopback(0)) {
            const std::size_t equals = place.find('=');
            const std::size_t colon = place.rfind(':');
            const std::string address = place.substr(equals + 1, colon - equals - 1);
            addresses_[place.substr(0, equals)] = address;
            source_.ports[address] = std::stoi(place.substr(colon + 1));
        }
        fakes_.windows.attach(console);
        console.Form3->txtLogPath.text = console.Form3->txtArchivePath.text =
            store_.path().string();
        console.Form3->Check1.value = 1;
        console.Form3->TxtUsername.text =
            std::string(sample::kSampleDomain) + "\\" + sample::kSampleUser;
        console.Form3->TxtPassword.text = sample::kSamplePassword;
    }

    const std::string& address_of(const std::string& host) { return addresses_.at(host); }

    /// Those of the event source; the port is always the host's own.
    WsmanOptions& options() { return source_.options; }

    void audit(const std::string& host, const std::string& kind = "full") {
        run_event(console,
                  [&](Console& at_event) { AuditHost(at_event, address_of(host), kind, {}); });
    }

    /// Fills the host list, in this order; the test of each host's port passes.
    void list_hosts(const std::vector<std::string>& hosts) {
        for (const std::string& host : hosts) {
            console.Form1.ListView1.add_row(address_of(host), 1).add_sub_item("-");
            fakes_.probe.answers[address_of(host)] = fakes::kConnects;
        }
    }
    fakes::ScriptedWindows& windows() { return fakes_.windows; }

    std::filesystem::path log_of(const std::string& host, const std::string& log) {
        return store_.path() / "Data" / (address_of(host) + "_" + log + ".log");
    }
    std::string bytes_of(const std::string& host, const std::string& log) {
        std::ifstream file(log_of(host, log), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    /// The audit logs of all days, one after the other.
    std::string audit_log() const {
        std::string lines;
        for (const auto& day : std::filesystem::directory_iterator(store_.path() / "Logs")) {
            std::ifstream file(day.path(), std::ios::binary);
            lines.append(std::istreambuf_iterator<char>(file), {});
        }
        return lines;
    }
    std::string outcome() const {
        return console.Form1.AuditStat.text + ": " + console.Form1.st1.text(1);
    }
    const std::filesystem::path& store() const { return store_.path(); }

  private:
    // Each host has a port of its own.
    class MovingSource final : public EventSource {
      public:
        std::unique_ptr<EventService> connect_server(
            const std::string& host, const std::string& name_space,
            const std::optional<Credentials>& credentials) override {
            options.port = ports.at(host);
            return WsmanEventSource(options).connect_server(host, name_space, credentials);
        }
        WsmanOptions options;
        std::map<std::string, int> ports;  // by address
    };

    ScratchFolder store_;
    sample::UserList users_;
    sample::CertificateAuthority authority_;
    sample::SampleNetwork network_;
    std::map<std::string, std::string> addresses_;
    fakes::Rig fakes_{control_events()};
    LocalFiles files_;
    MovingSource source_;

  public:
    Console console{{.event_source = source_,
                     .files = files_,
                     .directory_listing = fakes_.files,
                     .clock = fakes_.clock,
                     .settings_values = fakes_.settings,
                     .tcp_probe = fakes_.probe,
                     .browse_list = fakes_.browse,
                     .form_windows = fakes_.windows,
                     .dialogs = fakes_.dialogs,
                     .clipboard = fakes_.clipboard,
                     .chart_picture = fakes_.chart_picture,
                     .workbooks = fakes_.workbooks,
                     .mail_sender = fakes_.mail,
                     .directory_service = fakes_.directory,
                     .shell = fakes_.shell,
                     .program = fakes_.program}};
};

}  // namespace tessarine
