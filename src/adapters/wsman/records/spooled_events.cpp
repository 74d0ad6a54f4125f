#include "adapters/wsman/records/spooled_events.h"

#include <cstdint>
#include <cstring>

namespace tessarine {
namespace {

// The file never leaves the machine: lengths are in its own byte order.
using Length = std::uint32_t;
constexpr Length kNull = 0xFFFFFFFF;

void append_length(std::string& bytes, std::size_t length) {
    const auto number = static_cast<Length>(length);
    bytes.append(reinterpret_cast<const char*>(&number), sizeof number);
}

Length take_length(std::string_view& bytes) {
    Length length = 0;
    std::memcpy(&length, bytes.data(), sizeof length);
    bytes.remove_prefix(sizeof length);
    return length;
}

std::size_t length_of(const EventProperties::Property& property) {
    return sizeof(Length) + (property ? property->size() : 0);
}

}  // namespace

void append_event(std::string& bytes, const EventProperties& event) {
    std::size_t length = 0;
    for (const EventField& field : kEventFields) length += length_of(event.*field.property);
    append_length(bytes, length);
    for (const EventField& field : kEventFields) {
        const EventProperties::Property& property = event.*field.property;
        append_length(bytes, property ? property->size() : kNull);
        if (property) bytes.append(*property);
    }
}

bool take_event(std::string_view& bytes, EventProperties& event) {
    std::string_view rest = bytes;
    if (rest.size() < sizeof(Length) || take_length(rest) > rest.size()) return false;
    for (const EventField& field : kEventFields) {
        const Length length = take_length(rest);
        EventProperties::Property& property = event.*field.property;
        property.reset();
        if (length == kNull) continue;
        property = rest.substr(0, length);
        rest.remove_prefix(length);
    }
    bytes = rest;
    return true;
}

}  // namespace tessarine
