// Opening things with the program that the desktop has for them.
#pragma once

#include <string>

namespace tessarine {

class Shell {
  public:
    virtual ~Shell() = default;

    /// Opens the file or address with its default program. Waits for nothing.
    virtual void open(const std::string& target) = 0;

    /// Whether the desktop has a program for files like this one.
    virtual bool has_program_for(const std::string& path) = 0;
};

}  // namespace tessarine
