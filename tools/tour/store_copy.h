// What the tour leaves behind of the event store.
#pragma once

#include <QString>
#include <string>

namespace tessarine::tour {

/// Copies the folders Data and Logs of the store at `log_path` (8-bit code page) to `folder`, which
/// is replaced, and prints one line a file: its size, its lines and its name.
void copy_store(const std::string& log_path, const QString& folder);

}  // namespace tessarine::tour
