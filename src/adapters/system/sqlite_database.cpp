#include "adapters/system/sqlite_database.h"

#include <sqlite3.h>

#include <cerrno>

#include "adapters/system/system_error.h"
#include "core/code_page.h"

namespace tessarine {
namespace {

constexpr int kWaitForOthers = 3000;  // milliseconds
constexpr int kPrimaryCode = 0xFF;    // the bits of a result code that tell its kind

[[noreturn]] void raise(int code, const char* words) {
    switch (code & kPrimaryCode) {
        case SQLITE_NOTADB:
        case SQLITE_CORRUPT:
            throw DamagedDatabase(ErrorNumber::InputOutput, from_utf8(words));
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            throw HeldDatabase(ErrorNumber::PermissionDenied, "Another program holds the file");
        case SQLITE_PERM:
        case SQLITE_READONLY:
            raise_system_error(EACCES);
        case SQLITE_FULL:
            raise_system_error(ENOSPC);
        default:
            throw RuntimeError(ErrorNumber::Failed, from_utf8(words));
    }
}

void demand_success(int code, sqlite3* database) {
    if (code != SQLITE_OK) raise(code, sqlite3_errmsg(database));
}

int length_of(std::string_view bytes) {
    return static_cast<int>(bytes.size());
}

}  // namespace

SqliteDatabase::SqliteDatabase(const std::string& path) {
    sqlite3* opened = nullptr;
    const int code = sqlite3_open_v2(path.c_str(), &opened, SQLITE_OPEN_READWRITE, nullptr);
    database_.reset(opened);
    demand_success(code, opened);
    demand_success(sqlite3_busy_timeout(opened, kWaitForOthers), opened);
}

void SqliteDatabase::run(const std::string& sql) {
    sqlite3* database = database_.get();
    demand_success(sqlite3_exec(database, sql.c_str(), nullptr, nullptr, nullptr), database);
}

std::string SqliteDatabase::first_value(const std::string& sql) {
    Statement statement(*this, sql);
    return statement.step() ? statement.bytes(0) : std::string();
}

void SqliteDatabase::Close::operator()(sqlite3* database) const {
    sqlite3_close_v2(database);
}

SqliteDatabase::Statement::Statement(SqliteDatabase& database, const std::string& sql) {
    sqlite3* handle = database.database_.get();
    sqlite3_stmt* prepared = nullptr;
    demand_success(sqlite3_prepare_v2(handle, sql.c_str(), -1, &prepared, nullptr), handle);
    statement_.reset(prepared);
}

void SqliteDatabase::Statement::bind_text(int parameter, std::string_view text) {
    sqlite3_stmt* statement = statement_.get();
    demand_success(
        sqlite3_bind_text(statement, parameter, text.data(), length_of(text), SQLITE_TRANSIENT),
        sqlite3_db_handle(statement));
}

void SqliteDatabase::Statement::bind_bytes(int parameter, std::string_view bytes) {
    sqlite3_stmt* statement = statement_.get();
    demand_success(
        sqlite3_bind_blob(statement, parameter, bytes.data(), length_of(bytes), SQLITE_TRANSIENT),
        sqlite3_db_handle(statement));
}

void SqliteDatabase::Statement::bind_number(int parameter, int number) {
    sqlite3_stmt* statement = statement_.get();
    demand_success(sqlite3_bind_int(statement, parameter, number), sqlite3_db_handle(statement));
}

bool SqliteDatabase::Statement::step() {
    const int code = sqlite3_step(statement_.get());
    if (code == SQLITE_ROW) return true;
    if (code != SQLITE_DONE) raise(code, sqlite3_errmsg(sqlite3_db_handle(statement_.get())));
    return false;
}

std::string SqliteDatabase::Statement::bytes(int column) {
    const auto* start = static_cast<const char*>(sqlite3_column_blob(statement_.get(), column));
    if (start == nullptr) return {};
    return {start, static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column))};
}

int SqliteDatabase::Statement::number(int column) {
    return sqlite3_column_int(statement_.get(), column);
}

void SqliteDatabase::Statement::Finalize::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

}  // namespace tessarine
