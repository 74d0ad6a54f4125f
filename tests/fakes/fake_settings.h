// The settings' values in memory.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "core/runtime_error.h"
#include "core/settings_store.h"
#include "core/text.h"
#include "platform/settings_values.h"

namespace tessarine::fakes {

class FakeSettings final : public SettingsValues {
  public:
    std::string check() override {
        if (!unreadable.empty()) {
            --times_unreadable;
            const std::string reason = unreadable;
            if (times_unreadable == 0) unreadable.clear();
            throw RuntimeError(ErrorNumber::InputOutput, reason);
        }
        return note;
    }

    std::optional<StoredValue> read(const std::string& key, const std::string& name) override {
        const auto found = values_.find(place_of(key, name));
        return found == values_.end() ? std::nullopt : std::optional(found->second);
    }

    void write(const std::string& key, const std::string& name, const StoredValue& value) override {
        if (refuses_writes) throw RuntimeError(ErrorNumber::PermissionDenied, "Permission denied");
        values_[place_of(key, name)] = value;
        written.push_back(name + "=" + value.data.substr(0, value.data.size() - 1));
    }

    /// Puts a value there as a Save would, or one of any type.
    void set(const std::string& name, const std::string& text) {
        put(name, {.type = ValueType::Text, .data = text + '\0'});
    }
    void put(const std::string& name, const StoredValue& value) {
        values_[place_of(std::string(kSettingsKey), name)] = value;
    }

    std::vector<std::string> written;  ///< "name=text", in the order of the writes
    bool refuses_writes = false;
    std::string note;        ///< what a check tells
    std::string unreadable;  ///< why it fails
    int times_unreadable = 1;

  private:
    static std::string place_of(std::string key, const std::string& name) {
        while (!key.empty() && key.back() == '\\') key.pop_back();
        return lower_text(key + "\\" + name);
    }

    std::map<std::string, StoredValue> values_;
};

}  // namespace tessarine::fakes
