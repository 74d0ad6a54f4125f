// A file descriptor that closes itself.
#pragma once

#include <unistd.h>

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

namespace tessarine::sample {

class FileDescriptor {
  public:
    FileDescriptor() = default;
    explicit FileDescriptor(int number) : number_(number) {}
    FileDescriptor(FileDescriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~FileDescriptor() {
        if (number_ >= 0) close(number_);
    }

    int get() const { return number_; }

  private:
    int number_ = -1;
};

/// `result` of a system call; raises a std::system_error with errno when it is negative.
inline int checked(int result, const std::string& what) {
    if (result < 0) throw std::system_error(errno, std::generic_category(), what);
    return result;
}

}  // namespace tessarine::sample
