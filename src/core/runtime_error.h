// The one kind of error that the console's routines raise and handle.
#pragma once

#include <stdexcept>
#include <string>

namespace tessarine {

/// Numbers of the runtime errors that the console itself raises. Adapters use `Failed` with a
/// description in words when none of the others says more.
enum class ErrorNumber : int {
    Overflow = 6,
    SubscriptOutOfRange = 9,
    TypeMismatch = 13,
    FileNotFound = 53,
    InputOutput = 57,
    FileAlreadyExists = 58,
    DiskFull = 61,
    BadFileName = 64,
    PermissionDenied = 70,
    PathNotFound = 76,
    ObjectNotSet = 91,
    Failed = 440,
};

/// A runtime error of the product. `description` is in the console's 8-bit code page, a plain text
/// for the administrator that names the cause, such as "File not found".
class RuntimeError : public std::runtime_error {
  public:
    RuntimeError(ErrorNumber number, const std::string& description)
        : std::runtime_error(description), number_(number) {}

    ErrorNumber number() const { return number_; }
    std::string description() const { return what(); }

  private:
    ErrorNumber number_;
};

}  // namespace tessarine
