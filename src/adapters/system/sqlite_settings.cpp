#include "adapters/system/sqlite_settings.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>

#include "adapters/system/local_file.h"
#include "adapters/system/sqlite_database.h"
#include "adapters/system/system_clock.h"
#include "adapters/system/system_error.h"
#include "core/code_page.h"
#include "core/text.h"

namespace tessarine {
namespace {

// Marks the file as one of the console's settings ("TESS").
constexpr const char* kApplicationId = "1413829459";
constexpr const char* kTable =
    "CREATE TABLE IF NOT EXISTS value"
    " (name TEXT PRIMARY KEY COLLATE NOCASE, data BLOB NOT NULL, type INTEGER NOT NULL)"
    " WITHOUT ROWID";
constexpr const char* kRead = "SELECT type, data FROM value WHERE name = ?1";
constexpr const char* kWrite =
    "INSERT INTO value (name, type, data) VALUES (?1, ?2, ?3)"
    " ON CONFLICT (name) DO UPDATE SET type = excluded.type, data = excluded.data";

// A final separator of the key makes no difference.
std::string full_name(std::string key, const std::string& name) {
    while (!key.empty() && key.back() == '\\') key.pop_back();
    return to_utf8(key + "\\" + name);
}

bool is_ours(SqliteDatabase& database) {
    return database.first_value("PRAGMA application_id") == kApplicationId;
}

// An empty database is as good as one of ours.
bool is_usable(SqliteDatabase& database) {
    try {
        return database.first_value("PRAGMA quick_check(1)") == "ok" &&
               (is_ours(database) ||
                database.first_value("SELECT count(*) FROM sqlite_schema") == "0");
    } catch (const DamagedDatabase&) {
        return false;
    }
}

std::string free_name_beside(const std::string& path) {
    const DateTime now = SystemClock().now();
    const std::string first = path + ".broken-" + padded(now.date.year, 4) +
                              padded(now.date.month, 2) + padded(now.date.day, 2) + "-" +
                              padded(now.time.hour, 2) + padded(now.time.minute, 2) +
                              padded(now.time.second, 2);
    std::string name = first;
    struct stat taken {};
    for (int i = 2; ::lstat(name.c_str(), &taken) == 0; ++i) name = first + "-" + std::to_string(i);
    return name;
}

void keep_aside(const std::string& path) {
    if (std::rename(path.c_str(), free_name_beside(path).c_str()) != 0) raise_system_error(errno);
}

// Makes each write durable, and an empty database one of ours.
void prepare_for_writing(SqliteDatabase& database) {
    database.run("PRAGMA journal_mode = DELETE");
    database.run("PRAGMA synchronous = FULL");
    if (is_ours(database)) return;
    database.run("BEGIN IMMEDIATE");
    database.run(kTable);
    database.run(std::string("PRAGMA application_id = ") + kApplicationId);
    database.run("COMMIT");
}

// The database for reading or appending, which alone makes the file.
SqliteDatabase open_database(const std::string& path, OpenFor purpose) {
    open_local_file(path, purpose)->close();
    return SqliteDatabase(path);
}

SqliteDatabase open_settings(const std::string& path, OpenFor purpose) {
    {
        SqliteDatabase database = open_database(path, purpose);
        if (is_usable(database)) return database;
    }
    keep_aside(path);
    return open_database(path, purpose);
}

}  // namespace

SqliteSettings::SqliteSettings(const std::string& path) : path_(system_path(path)) {}

std::optional<StoredValue> SqliteSettings::read(const std::string& key, const std::string& name) {
    try {
        SqliteDatabase database = open_settings(path_, OpenFor::Reading);
        SqliteDatabase::Statement statement(database, kRead);
        statement.bind_text(1, full_name(key, name));
        if (!statement.step()) return std::nullopt;
        return StoredValue{static_cast<ValueType>(statement.number(0)), statement.bytes(1)};
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

void SqliteSettings::write(const std::string& key, const std::string& name,
                           const StoredValue& value) {
    SqliteDatabase database = open_settings(path_, OpenFor::Appending);
    prepare_for_writing(database);
    SqliteDatabase::Statement statement(database, kWrite);
    statement.bind_text(1, full_name(key, name));
    statement.bind_number(2, static_cast<int>(value.type));
    statement.bind_bytes(3, value.data);
    statement.step();
}

}  // namespace tessarine
