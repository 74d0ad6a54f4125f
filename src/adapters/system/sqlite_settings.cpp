#include "adapters/system/sqlite_settings.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <system_error>
#include <utility>
#include <vector>

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
// No setting is nearly as long.
constexpr const char* kReadAll = "SELECT name, type, data FROM value WHERE length(data) <= 1000000";
constexpr const char* kWrite =
    "INSERT INTO value (name, type, data) VALUES (?1, ?2, ?3)"
    " ON CONFLICT (name) DO UPDATE SET type = excluded.type, data = excluded.data";

// A final separator of the key makes no difference.
std::string full_name(std::string key, const std::string& name) {
    while (!key.empty() && key.back() == '\\') key.pop_back();
    return key + "\\" + name;
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

// Returns the new name.
std::string keep_aside(const std::string& path) {
    std::string name = free_name_beside(path);
    if (std::rename(path.c_str(), name.c_str()) != 0) raise_system_error(errno);
    return name;
}

// A read that fails can look like damage. Raises its error.
void demand_all_bytes(const std::string& path) {
    const auto file = open_local_file(path, OpenFor::Reading);
    std::vector<char> block(std::size_t{64} << 10);
    while (file->read(block.data(), block.size()) != 0) continue;
}

bool is_missing(const RuntimeError& error) {
    return error.number() == ErrorNumber::FileNotFound ||
           error.number() == ErrorNumber::PathNotFound;
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

}  // namespace

SqliteSettings::SqliteSettings(const std::string& path) : path_(system_path(path)) {}

SqliteDatabase SqliteSettings::open(OpenFor purpose) {
    // What looks damaged is looked at twice.
    for (int look = 0; look < 2; ++look) {
        SqliteDatabase database = open_database(path_, purpose);
        if (is_usable(database)) return database;
        demand_all_bytes(path_);
    }
    put_aside_ = keep_aside(path_);
    return open_database(path_, purpose);
}

void SqliteSettings::use(OpenFor purpose, const std::function<void(SqliteDatabase&)>& use) {
    constexpr std::chrono::seconds kStillHeld{1};
    using Steady = std::chrono::steady_clock;
    if (Steady::now() - held_ < kStillHeld)
        throw HeldDatabase(ErrorNumber::PermissionDenied, "Another program holds the file");
    try {
        SqliteDatabase database = open(purpose);
        use(database);
    } catch (const HeldDatabase&) {
        held_ = Steady::now();
        throw;
    }
}

void SqliteSettings::take_all() {
    use(OpenFor::Reading, [this](SqliteDatabase& database) {
        std::map<std::string, StoredValue> all;
        const bool has_table = is_ours(database);
        if (has_table) {
            SqliteDatabase::Statement row(database, kReadAll);
            while (row.step())
                all[lower_text(from_utf8(row.bytes(0)))] = {static_cast<ValueType>(row.number(1)),
                                                            row.bytes(2)};
        }
        known_ = std::move(all);
    });
}

// The password is in the file.
std::string SqliteSettings::tighten() const {
    struct stat status {};
    if (::stat(path_.c_str(), &status) != 0 || (status.st_mode & (S_IRWXG | S_IRWXO)) == 0)
        return "";
    const std::string found =
        "Others than you could read or write " + from_utf8(path_) + ", which may hold a password. ";
    if (::chmod(path_.c_str(), S_IRUSR | S_IWUSR) == 0) return found + "Now it is yours alone.";
    return found + "That can't be changed: " + from_utf8(std::generic_category().message(errno)) +
           ".";
}

std::string SqliteSettings::check() {
    std::string note = tighten();
    put_aside_.clear();
    try {
        take_all();
    } catch (const RuntimeError& error) {
        if (!is_missing(error)) throw;
    }
    if (!put_aside_.empty())
        note += (note.empty() ? "" : "\r\n\r\n") +
                ("The settings were damaged and are kept in " + from_utf8(put_aside_)) +
                ". The console begins with its defaults.";
    return note;
}

std::optional<StoredValue> SqliteSettings::read(const std::string& key, const std::string& name) {
    const std::string known_name = lower_text(full_name(key, name));
    try {
        take_all();
    } catch (const RuntimeError& error) {
        if (is_missing(error)) known_.clear();
    }
    const auto found = known_.find(known_name);
    return found == known_.end() ? std::nullopt : std::optional(found->second);
}

void SqliteSettings::write(const std::string& key, const std::string& name,
                           const StoredValue& value) {
    use(OpenFor::Appending, [&](SqliteDatabase& database) {
        prepare_for_writing(database);
        SqliteDatabase::Statement statement(database, kWrite);
        statement.bind_text(1, to_utf8(full_name(key, name)));
        statement.bind_number(2, static_cast<int>(value.type));
        statement.bind_bytes(3, value.data);
        statement.step();
    });
}

}  // namespace tessarine
