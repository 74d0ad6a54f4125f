// The little of SQLite that the settings need, with its errors as RuntimeErrors.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/runtime_error.h"

struct sqlite3;
struct sqlite3_stmt;

namespace tessarine {

/// The file is no database, or a damaged one.
class DamagedDatabase : public RuntimeError {
  public:
    using RuntimeError::RuntimeError;
};

/// Another process holds the file, and has been waited for.
class HeldDatabase : public RuntimeError {
  public:
    using RuntimeError::RuntimeError;
};

/// A database file that exists, open for reading alone where it may not be written. Another process
/// that writes is waited for. Every call may raise a RuntimeError.
class SqliteDatabase {
  public:
    class Statement;

    /// `path` is one of the system.
    explicit SqliteDatabase(const std::string& path);

    /// Runs a statement that gives nothing back.
    void run(const std::string& sql);
    /// The first value of the first row that a statement gives.
    std::string first_value(const std::string& sql);

  private:
    struct Close {
        void operator()(sqlite3* database) const;
    };
    std::unique_ptr<sqlite3, Close> database_;
};

/// One statement with its parameters, which count from 1, and its row, whose columns count from 0.
/// It may not outlive the database.
class SqliteDatabase::Statement {
  public:
    Statement(SqliteDatabase& database, const std::string& sql);

    void bind_text(int parameter, std::string_view text);
    void bind_bytes(int parameter, std::string_view bytes);
    void bind_number(int parameter, int number);

    /// Goes to the next row; false after the last one.
    bool step();
    std::string bytes(int column);
    int number(int column);

  private:
    struct Finalize {
        void operator()(sqlite3_stmt* statement) const;
    };
    std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

}  // namespace tessarine
