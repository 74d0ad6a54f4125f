#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>

#include "adapters/system/sqlite_database.h"
#include "adapters/system/sqlite_settings.h"
#include "adapters/system_temporary_folder.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

const std::string kKey = "SOFTWARE\\Tessarine";

class SqliteSettingsTest : public testing::Test {
  protected:
    static StoredValue text(const std::string& value) { return {ValueType::Text, value + '\0'}; }

    // Each use is that of a console started anew.
    void write(const std::string& name, const StoredValue& value) {
        SqliteSettings(path()).write(kKey + "\\", name, value);
    }
    std::string read(const std::string& name) {
        const auto value = SqliteSettings(path()).read(kKey, name);
        return value ? value->data.substr(0, value->data.size() - 1) : "absent";
    }
    std::string path() const { return folder_.path_of("settings.db"); }

    // The name of the file that was put aside; empty when there is none.
    std::string name_aside() const {
        for (const auto& each : std::filesystem::directory_iterator(folder_.path())) {
            const std::string name = each.path().filename().string();
            if (name.starts_with("settings.db.broken-")) return name;
        }
        return "";
    }

    // The console goes on with the values that are absent, saves, and the old file is still there.
    void expect_put_aside(const std::string& bytes) {
        EXPECT_EQ(read("LogPath"), "absent");
        write("LogPath", text("new"));
        EXPECT_EQ(read("LogPath"), "new");
        EXPECT_TRUE(folder_.bytes_of(name_aside()) == bytes);
    }

    TemporaryFolder folder_;
};

TEST_F(SqliteSettingsTest, EveryValueComesBackWithItsTypeAndBytes) {
    const StoredValue values[] = {text(""),
                                  text(std::string("a\0b\0", 4)),
                                  text("\xFF\x80\xDC'\";--"),
                                  {ValueType::Number, std::string("\x01\0\0\0", 4)},
                                  {ValueType::Binary, ""},
                                  {ValueType::Text, std::string(100000, 'x')}};
    for (const StoredValue& value : values) {
        write("B\xFCro", value);
        const auto found = SqliteSettings(path()).read(kKey, "B\xFCro");
        ASSERT_TRUE(found);
        EXPECT_EQ(found->type, value.type);
        EXPECT_TRUE(found->data == value.data);
    }
}

TEST_F(SqliteSettingsTest, NamesIgnoreCaseAndTheKeysFinalSeparator) {
    write("LogPath", text("first"));
    write("LOGPATH", text("second"));
    EXPECT_EQ(read("logpath"), "second");
    EXPECT_EQ(read("LogPat"), "absent");
    EXPECT_FALSE(SqliteSettings(path()).read("SOFTWARE\\Other", "LogPath"));
}

TEST_F(SqliteSettingsTest, ReadingMakesNoFileAndWritingOneOfItsOwnersAlone) {
    EXPECT_EQ(read("LogPath"), "absent");
    EXPECT_FALSE(std::filesystem::exists(path()));
    write("LogPath", text("x"));
    EXPECT_EQ(folder_.rights_of("settings.db"),
              std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

TEST_F(SqliteSettingsTest, AnEmptyFileIsAFreshOne) {
    folder_.put("settings.db", "");
    EXPECT_EQ(read("LogPath"), "absent");
    write("LogPath", text("x"));
    EXPECT_EQ(read("LogPath"), "x");
    EXPECT_EQ(name_aside(), "");
}

TEST_F(SqliteSettingsTest, AFileThatIsNoDatabaseIsPutAside) {
    const std::string bytes = "[settings]\nLogPath=C:\\\n" + std::string(5000, ' ');
    folder_.put("settings.db", bytes);
    expect_put_aside(bytes);
}

TEST_F(SqliteSettingsTest, ADatabaseOfAnotherProgramIsPutAside) {
    folder_.put("settings.db", "");
    SqliteDatabase(path()).run("CREATE TABLE value (name TEXT, data BLOB, type INTEGER)");
    expect_put_aside(folder_.bytes_of("settings.db"));
}

TEST_F(SqliteSettingsTest, ADamagedDatabaseIsPutAside) {
    for (int i = 0; i < 9; ++i) write("value" + std::to_string(i), text(std::string(1500, 'x')));
    std::string bytes = folder_.bytes_of("settings.db");
    for (std::size_t i = 4096; i < bytes.size(); i += 2) bytes[i] = '\x5A';
    folder_.put("settings.db", bytes);
    expect_put_aside(bytes);
}

TEST_F(SqliteSettingsTest, WhatCantBeWrittenRaisesAnErrorAndReadsAsAbsent) {
    SqliteSettings settings(folder_.path_of("missing/settings.db"));
    EXPECT_FALSE(settings.read(kKey, "LogPath"));
    EXPECT_THROW(settings.write(kKey, "LogPath", text("x")), RuntimeError);
    SqliteSettings on_folder(folder_.path());
    EXPECT_FALSE(on_folder.read(kKey, "LogPath"));
    EXPECT_THROW(on_folder.write(kKey, "LogPath", text("x")), RuntimeError);
}

TEST_F(SqliteSettingsTest, AUserWithoutTheRightToWriteReadsAllTheSame) {
    if (::geteuid() == 0) GTEST_SKIP() << "root may write everywhere";
    write("LogPath", text("x"));
    using std::filesystem::perms;
    std::filesystem::permissions(path(), perms::owner_read);
    std::filesystem::permissions(folder_.path(), perms::owner_read | perms::owner_exec);
    EXPECT_EQ(read("LogPath"), "x");
    EXPECT_THROW(write("LogPath", text("y")), RuntimeError);
    EXPECT_EQ(read("LogPath"), "x");
    std::filesystem::permissions(folder_.path(), perms::owner_all);
}

// A database that is held costs one wait, and not the values.
TEST_F(SqliteSettingsTest, AnotherProgramThatHoldsTheFileCostsOneWait) {
    write("AuditOpt", text("append"));
    SqliteSettings settings(path());
    EXPECT_EQ(settings.check(), "");
    SqliteDatabase other(path());
    other.run("BEGIN EXCLUSIVE");
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < 35; ++i) {
        const auto value = settings.read(kKey, "AuditOpt");
        ASSERT_TRUE(value);
        EXPECT_TRUE(value->data == text("append").data);
    }
    for (int i = 0; i < 5; ++i)
        EXPECT_THROW(settings.write(kKey, "AuditOpt", text("move")), RuntimeError);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
    EXPECT_THROW(SqliteSettings(path()).check(), RuntimeError);
    other.run("COMMIT");
    EXPECT_EQ(read("AuditOpt"), "append");
    EXPECT_EQ(name_aside(), "");
}

TEST_F(SqliteSettingsTest, ACheckTellsWhatItFinds) {
    EXPECT_EQ(SqliteSettings(path()).check(), "") << "nothing is there yet";
    write("LogPath", text("x"));
    using std::filesystem::perms;
    std::filesystem::permissions(path(), perms::owner_all | perms::others_read);
    const std::string note = SqliteSettings(path()).check();
    EXPECT_NE(note.find("Now it is yours alone."), std::string::npos) << note;
    EXPECT_EQ(folder_.rights_of("settings.db"), perms::owner_read | perms::owner_write);
    folder_.put("settings.db", "no database" + std::string(5000, ' '));
    const std::string damage = SqliteSettings(path()).check();
    EXPECT_NE(damage.find("settings.db.broken-"), std::string::npos) << damage;
    std::filesystem::remove(path());
    std::filesystem::create_directory(path());
    EXPECT_THROW(SqliteSettings(path()).check(), RuntimeError);
}

// A write that meets another one waits for it.
TEST_F(SqliteSettingsTest, TwoConsolesSaveAtTheSameTime) {
    constexpr int kWrites = 40;
    const auto save = [this](const std::string& name) {
        for (int i = 1; i <= kWrites; ++i) write(name, text(std::to_string(i)));
    };
    const pid_t other = ::fork();
    if (other == 0) {
        try {
            save("other");
        } catch (const RuntimeError&) {
            ::_exit(1);
        }
        ::_exit(0);
    }
    save("own");
    int status = 1;
    ::waitpid(other, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(read("own"), std::to_string(kWrites));
    EXPECT_EQ(read("other"), std::to_string(kWrites));
    EXPECT_EQ(name_aside(), "");
}

}  // namespace
}  // namespace tessarine
