// The names of the Windows network's groups and servers.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tessarine {

struct Console;

/// Masks of server types: domains and workgroups, and all servers.
inline constexpr std::uint32_t kServerTypeDomainEnum = 0x80000000;
inline constexpr std::uint32_t kServerTypeAll = 0xFFFFFFFF;

/// An array of names, or one without any elements where the network has failed.
class ServerNames {
  public:
    explicit ServerNames(std::vector<std::string> names) : names_(std::move(names)) {}
    static ServerNames without_elements(const std::string& reason);

    /// The number of names, as the array has an empty element behind the last one. On an array
    /// without elements it raises "Subscript out of range" with the reason in its place.
    int upper_bound() const;
    /// Counted from 0.
    const std::string& operator[](int index) const {
        return names_[static_cast<std::size_t>(index)];
    }

  private:
    std::vector<std::string> names_;
    std::string reason_;  // empty where there are elements
};

/// The groups for kServerTypeDomainEnum, else the servers of `Domain`; with no name, those of this
/// machine's own group. Events pass after each name.
ServerNames GetServerNames(Console& console, const std::string& Domain, std::uint32_t ServerType);

}  // namespace tessarine
