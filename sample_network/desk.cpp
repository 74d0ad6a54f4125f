#include "sample_network/desk.h"

#include <fstream>
#include <stdexcept>
#include <string>

#include "adapters/system/sqlite_settings.h"
#include "core/code_page.h"
#include "core/scramble.h"
#include "core/settings_store.h"
#include "sample_network/mail_server.h"
#include "sample_network/wire/user_list.h"

namespace tessarine::sample {
namespace {

void write_unless_there(const std::filesystem::path& path, const std::string& text) {
    if (std::filesystem::exists(path)) return;
    std::ofstream file(path, std::ios::binary);
    file << text << std::flush;
    if (!file) throw std::runtime_error("Can't write " + path.string());
}

std::string host_list(const std::vector<SampleHost>& hosts) {
    std::string lines;
    for (const SampleHost& host : hosts) lines += host.name + "\r\n";
    return lines;
}

// Each entry has an empty line after it, as the console writes them.
std::string alert_list() {
    std::string lines;
    for (const char* code : {"4625", "7034", "1000", "6008"})
        lines += std::string(code) + "\r\n\r\n";
    return lines;
}

// The settings under which an audit signs in as the sample user, and mails go to the sample server.
void write_settings_unless_there(const std::filesystem::path& path) {
    if (std::filesystem::exists(path)) return;
    SqliteSettings settings(from_utf8(path.string()));
    const auto write = [&](const char* name, const std::string& text) {
        settings.write(std::string(kSettingsKey) + "\\", name, {ValueType::Text, text + '\0'});
    };
    write("altuser", std::string(kSampleDomain) + "\\" + kSampleUser);
    write("altpass", Scramble(kSamplePassword, kScrambleKey));
    write("usealtcred", "true");
    write("mailsmtp", kMailServer);
    write("mailfrom", "console@sample.example");
    write("mailto", "admin@sample.example");
}

}  // namespace

void prepare_desk(const std::filesystem::path& folder, const std::vector<SampleHost>& hosts) {
    if (std::filesystem::create_directories(folder))
        std::filesystem::permissions(folder, std::filesystem::perms::owner_all);
    write_unless_there(folder / "hosts.txt", host_list(hosts));
    write_unless_there(folder / "alertpatterns.txt", alert_list());
    write_settings_unless_there(folder / "settings.db");
}

}  // namespace tessarine::sample
