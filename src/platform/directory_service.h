// The directory of a domain: containers and what is in them.
#pragma once

#include <memory>
#include <string>

namespace tessarine {

/// What is read of a child, in the console's 8-bit code page; empty where the child hasn't got it.
struct DirectoryChild {
    std::string CN;
    std::string OU;
};

/// An object of the directory that has been reached.
class DirectoryObject {
  public:
    virtual ~DirectoryObject() = default;

    /// Fills `child` with the next of the objects right below this one; false after the last. What
    /// can't be read of it raises a RuntimeError that names the cause in words; the children before
    /// are still good, and there is no way on.
    virtual bool next(DirectoryChild& child) = 0;
};

class DirectoryService {
  public:
    virtual ~DirectoryService() = default;

    /// Reaches the object of that path as the user who runs the console. A path is "LDAP://", where
    /// it is known the name of a server with "/" behind it, and a distinguished name (RFC 4514), in
    /// front of and within which there may be blanks: "LDAP:// DC=example, DC=net". Raises a
    /// RuntimeError that names the cause in words.
    virtual std::unique_ptr<DirectoryObject> bind(const std::string& path) = 0;
};

}  // namespace tessarine
