#include "sample_network/hosts/event_files.h"

#include <algorithm>
#include <map>
#include <memory>
#include <nlohmann/json.hpp>
#include <stdexcept>

namespace tessarine::sample {
namespace {

using Json = nlohmann::json;

std::optional<std::string> text_or_null(const Json& value) {
    if (value.is_null()) return std::nullopt;
    return value.get<std::string>();
}

DmtfTime time_of(const Json& object, const char* field) {
    const auto& text = object.at(field).get_ref<const std::string&>();
    const auto time = parse_dmtf(text);
    if (!time) throw std::runtime_error(std::string(field) + " is no DMTF time: " + text);
    return *time;
}

SampleEvent event_of(const Json& object) {
    SampleEvent event;
    object.at("LogFile").get_to(event.log_file);
    object.at("Type").get_to(event.type);
    object.at("SourceName").get_to(event.source_name);
    object.at("EventCode").get_to(event.event_code);
    object.at("ComputerName").get_to(event.computer_name);
    event.user = text_or_null(object.at("User"));
    event.message = text_or_null(object.at("Message"));
    event.time_generated = time_of(object, "TimeGenerated").instant;
    event.time_written = time_of(object, "TimeWritten").instant;
    return event;
}

// Newer records have the higher numbers, and stand first.
void number_records(std::vector<SampleEvent>& events) {
    std::map<std::string, std::uint32_t> last;
    std::for_each(events.rbegin(), events.rend(),
                  [&](SampleEvent& event) { event.record_number = ++last[event.log_file]; });
}

}  // namespace

EventFile read_event_file(std::istream& lines, const std::string& name) {
    EventFile file;
    std::map<std::chrono::minutes, int> offsets;
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        if (line.empty()) continue;
        try {
            const Json object = Json::parse(line);
            file.events.push_back(event_of(object));
            ++offsets[time_of(object, "TimeGenerated").offset];
        } catch (const std::exception& error) {
            throw std::runtime_error(name + ", line " + std::to_string(number) + ": " +
                                     error.what());
        }
    }
    number_records(file.events);
    const auto most =
        std::max_element(offsets.begin(), offsets.end(),
                         [](const auto& a, const auto& b) { return a.second < b.second; });
    if (most != offsets.end()) file.offset = most->first;
    return file;
}

EventHistory history_of(std::vector<SampleEvent> events) {
    auto shared = std::make_shared<const std::vector<SampleEvent>>(std::move(events));
    return [shared]() -> EventWalk {
        return [shared, next = std::size_t{0}]() mutable -> const SampleEvent* {
            return next < shared->size() ? &(*shared)[next++] : nullptr;
        };
    };
}

}  // namespace tessarine::sample
