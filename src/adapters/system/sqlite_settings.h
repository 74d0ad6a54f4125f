// The settings' values in a small database file.
#pragma once

#include "platform/settings_values.h"

namespace tessarine {

/// A table with one row a value. The file is opened for each call, so that consoles can share it
/// and a user who may only read it can. It is its owner's alone. A file that is damaged or holds
/// something else is kept under a new name with ".broken-" and the moment, and a fresh one begun.
class SqliteSettings final : public SettingsValues {
  public:
    /// `path` of the file, in the console's 8-bit code page; its folder must be there at a write.
    explicit SqliteSettings(const std::string& path);

    std::optional<StoredValue> read(const std::string& key, const std::string& name) override;
    void write(const std::string& key, const std::string& name, const StoredValue& value) override;

  private:
    std::string path_;  // as the system takes it
};

}  // namespace tessarine
