#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "adapters/system/sqlite_settings.h"
#include "core/scramble.h"
#include "core/settings_store.h"
#include "sample_network/built_in_hosts.h"
#include "sample_network/desk.h"
#include "sample_network/scratch_file.h"
#include "sample_network/wire/user_list.h"

namespace tessarine::sample {
namespace {

std::string content(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(SampleDesk, HoldsWhatTheConsoleReadsAndKeepsWhatIsThere) {
    const ScratchFolder scratch;
    const std::filesystem::path desk = scratch.path() / "data" / "tessarine";
    const auto hosts = only_hosts(built_in_hosts({}, 20), {"FILESRV01", "VAULT01"});
    prepare_desk(desk, hosts);
    EXPECT_EQ(content(desk / "hosts.txt"), "FILESRV01\r\nVAULT01\r\n");
    EXPECT_EQ(content(desk / "alertpatterns.txt").substr(0, 16), "4625\r\n\r\n7034\r\n\r\n");

    SqliteSettings settings(desk / "settings.db");
    const auto text = [&](const char* name) {
        const auto value = settings.read(std::string(kSettingsKey), name);
        return value ? value->data.substr(0, value->data.size() - 1) : "absent";
    };
    EXPECT_EQ(text("usealtcred"), "true");
    EXPECT_EQ(text("altuser"), "SAMPLE\\auditor");
    EXPECT_EQ(Scramble(text("altpass"), kScrambleKey), kSamplePassword);

    std::ofstream(desk / "alertpatterns.txt") << "7\n";
    settings.write(std::string(kSettingsKey), "altuser", {ValueType::Text, std::string("me\0", 3)});
    prepare_desk(desk, hosts);
    EXPECT_EQ(content(desk / "alertpatterns.txt"), "7\n");
    EXPECT_EQ(text("altuser"), "me");
}

}  // namespace
}  // namespace tessarine::sample
