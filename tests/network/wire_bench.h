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
#include "audit/audit_host.h"
#include "core/console_state.h"
#include "fakes/bench.h"
#include "sample_network/sample_network.h"
#include "sample_network/user_list.h"

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
class WireBench {
  public:
    explicit WireBench(std::vector<sample::SampleHost> hosts)
        : network_(std::move(hosts), authority_) {
        for (const std::string& place : network_.listen_loopback(0)) {
            const std::size_t equals = place.find('=');
            const std::size_t colon = place.rfind(':');
            places_[place.substr(0, equals)] = {place.substr(equals + 1, colon - equals - 1),
                                                std::stoi(place.substr(colon + 1))};
        }
        console.Form3->txtLogPath.text = console.Form3->txtArchivePath.text =
            store_.path().string();
        console.Form3->Check1.value = 1;
        console.Form3->TxtUsername.text =
            std::string(sample::kSampleDomain) + "\\" + sample::kSampleUser;
        console.Form3->TxtPassword.text = sample::kSamplePassword;
    }

    const std::string& address_of(const std::string& host) { return places_.at(host).address; }

    void audit(const std::string& host, const std::string& kind = "full") {
        source_.port = places_.at(host).port;
        run_event(console,
                  [&](Console& at_event) { AuditHost(at_event, address_of(host), kind, {}); });
    }

    std::filesystem::path log_of(const std::string& host, const std::string& log) {
        return store_.path() / "Data" / (address_of(host) + "_" + log + ".log");
    }
    std::string bytes_of(const std::string& host, const std::string& log) {
        std::ifstream file(log_of(host, log), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    std::string outcome() const {
        return console.Form1.AuditStat.text + ": " + console.Form1.st1.text(1);
    }
    const std::filesystem::path& store() const { return store_.path(); }

  private:
    struct Place {
        std::string address;
        int port = 0;
    };

    // An event source whose port can be set from audit to audit.
    class MovingSource final : public EventSource {
      public:
        std::unique_ptr<EventService> connect_server(
            const std::string& host, const std::string& name_space,
            const std::optional<Credentials>& credentials) override {
            WsmanOptions options;
            options.port = port;
            return WsmanEventSource(options).connect_server(host, name_space, credentials);
        }
        int port = 0;
    };

    ScratchFolder store_;
    sample::UserList users_;
    sample::CertificateAuthority authority_;
    sample::SampleNetwork network_;
    std::map<std::string, Place> places_;
    fakes::Bench fakes_;
    LocalFiles files_;
    MovingSource source_;

  public:
    Console console{{.event_source = source_,
                     .files = files_,
                     .directory_listing = fakes_.files,
                     .clock = fakes_.clock,
                     .settings_values = fakes_.settings,
                     .tcp_probe = fakes_.probe,
                     .form_windows = fakes_.windows,
                     .dialogs = fakes_.dialogs,
                     .shell = fakes_.shell,
                     .program = fakes_.program}};
};

}  // namespace tessarine
