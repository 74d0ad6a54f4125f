// The settings' values in a small database file.
#pragma once

#include <chrono>
#include <functional>
#include <map>

#include "adapters/system/sqlite_database.h"
#include "platform/files.h"
#include "platform/settings_values.h"

namespace tessarine {

/// A table with one row a value. The file is opened for each call, so that consoles can share it
/// and a user who may only read it can. It is its owner's alone. A file that is damaged or holds
/// something else, and is readable to its last byte, is kept under a new name with ".broken-" and
/// the moment, and a fresh one begun. Another program that holds the file is waited for, for three
/// seconds in all calls that come close behind one another.
class SqliteSettings final : public SettingsValues {
  public:
    /// `path` of the file, in the console's 8-bit code page; its folder must be there at a write.
    explicit SqliteSettings(const std::string& path);

    std::string check() override;
    std::optional<StoredValue> read(const std::string& key, const std::string& name) override;
    void write(const std::string& key, const std::string& name, const StoredValue& value) override;

  private:
    void use(OpenFor purpose, const std::function<void(SqliteDatabase&)>& use);
    SqliteDatabase open(OpenFor purpose);
    void take_all();
    std::string tighten() const;

    std::string path_;  // as the system takes it
    std::string put_aside_;
    std::chrono::steady_clock::time_point held_;  // when somebody was last found to hold it
    std::map<std::string, StoredValue> known_;    // by full names in lower case
};

}  // namespace tessarine
