// A store of named values, each with a type, as the settings need it.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tessarine {

/// The types that a value can have; the numbers are part of the stored form.
enum class ValueType : int { Text = 1, Binary = 3, Number = 4 };

/// `data` are the stored bytes: a text ends in one zero character, a number is four bytes,
/// little-endian.
struct StoredValue {
    ValueType type = ValueType::Text;
    std::string data;
};

class SettingsValues {
  public:
    virtual ~SettingsValues() = default;

    /// Looks at the store as a whole, before the first read. Raises a RuntimeError with the reason
    /// where there is one that can't be read. Returns what its user should know, for a damaged
    /// store, which is put aside, and for one that others can read, which is made his alone; empty
    /// otherwise.
    virtual std::string check() = 0;

    /// The value of that name, names compared without regard to case; nothing when it is absent.
    /// Where it can't be read, what was last known of it.
    virtual std::optional<StoredValue> read(const std::string& key, const std::string& name) = 0;

    /// Writes durably. Raises a RuntimeError when the store refuses.
    virtual void write(const std::string& key, const std::string& name,
                       const StoredValue& value) = 0;
};

}  // namespace tessarine
