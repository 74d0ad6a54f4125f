// A network that only this program and its children see.
#pragma once

#include <optional>
#include <string>

namespace tessarine::sample {

/// Puts this process, which must have one thread, into a network of its own, in which all of
/// 127.0.0.0/8 is its own to listen at, and where the lines of `hosts` name addresses and the
/// certificate `authority` (PEM) is trusted, beside those of the system. The user stays who he is,
/// and nothing outside changes. Returns the reason when the system doesn't allow it; the process is
/// then as it was.
std::optional<std::string> enter_private_network(const std::string& hosts,
                                                 const std::string& authority);

}  // namespace tessarine::sample
