#include "sample_network/wire/item_text.h"

#include <algorithm>

namespace tessarine::sample {
namespace {

// Writes the properties of one object.
class ItemWriter {
  public:
    explicit ItemWriter(const std::string& class_name) : class_name_(class_name) {
        text_.reserve(2500);
        text_ += "<p:" + class_name +
                 " xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\""
                 " xmlns:p=\"http://schemas.microsoft.com/wbem/wsman/1/wmi/root/cimv2/" +
                 class_name +
                 "\" xmlns:cim=\"http://schemas.dmtf.org/wbem/wscim/1/common\" xsi:type=\"p:" +
                 class_name + "_Type\">";
    }

    void add(std::string_view name, std::string_view value) {
        open(name);
        append_escaped(text_, value);
        close(name);
    }

    void add_number(std::string_view name, std::int64_t value) { add(name, std::to_string(value)); }

    void add_optional(std::string_view name, const std::optional<std::string>& value) {
        if (value)
            add(name, *value);
        else
            add_null(name);
    }

    void add_null(std::string_view name) {
        text_.append("<p:").append(name).append(" xsi:nil=\"true\"/>");
    }

    void add_time(std::string_view name, Instant value) {
        open(name);
        text_ += "<cim:Datetime>";
        append_cim_datetime(text_, value);
        text_ += "</cim:Datetime>";
        close(name);
    }

    std::string finished() {
        text_ += "</p:" + class_name_ + ">";
        return std::move(text_);
    }

  private:
    void open(std::string_view name) { text_.append("<p:").append(name).append(">"); }
    void close(std::string_view name) { text_.append("</p:").append(name).append(">"); }

    std::string class_name_;
    std::string text_;
};

void add_change(ItemWriter& writer, const std::string& prefix, const ClockChange& change) {
    writer.add_number(prefix + "Day", change.week);
    writer.add_number(prefix + "DayOfWeek", change.day_of_week);
    writer.add_number(prefix + "Hour", change.hour);
    writer.add_number(prefix + "Millisecond", 0);
    writer.add_number(prefix + "Minute", 0);
    writer.add_number(prefix + "Month", change.month);
    writer.add_number(prefix + "Second", 0);
    writer.add_number(prefix + "Year", 0);
}

bool needs_escape(char c) {
    return c == '&' || c == '<' || c == '>' ||
           (static_cast<unsigned char>(c) < 0x20 && c != '\n' && c != '\t');
}

}  // namespace

void append_escaped(std::string& target, std::string_view text) {
    while (!text.empty()) {
        const auto* special = std::find_if(text.begin(), text.end(), needs_escape);
        const auto plain = static_cast<std::size_t>(special - text.begin());
        target += text.substr(0, plain);
        if (special == text.end()) return;
        switch (*special) {
            case '&':
                target += "&amp;";
                break;
            case '<':
                target += "&lt;";
                break;
            case '>':
                target += "&gt;";
                break;
            // XML forbids most control characters even so, but hosts send them.
            default:
                target += "&#" + std::to_string(*special) + ";";
        }
        text.remove_prefix(plain + 1);
    }
}

std::size_t utf16_length(std::string_view text) {
    std::size_t units = 0;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        // One unit for each character, another one for those of four bytes.
        units += (byte & 0xC0) != 0x80;
        units += byte >= 0xF0;
    }
    return units;
}

std::string event_item(const SampleEvent& event) {
    ItemWriter writer("Win32_NTLogEvent");
    writer.add_number("Category", 0);
    writer.add_null("CategoryString");
    writer.add("ComputerName", event.computer_name);
    writer.add_null("Data");
    writer.add_number("EventCode", event.event_code);
    writer.add_number("EventIdentifier", event.event_code);
    writer.add("InsertionStrings", event.source_name);
    writer.add("InsertionStrings", "%%1833");
    writer.add("Logfile", event.log_file);
    writer.add_optional("Message", event.message);
    writer.add_number("RecordNumber", event.record_number);
    writer.add("SourceName", event.source_name);
    writer.add_time("TimeGenerated", event.time_generated);
    writer.add_time("TimeWritten", event.time_written);
    writer.add("Type", event.type);
    writer.add_optional("User", event.user);
    return writer.finished();
}

std::string time_zone_item(const TimeZone& zone) {
    ItemWriter writer("Win32_TimeZone");
    writer.add_number("Bias", zone.bias);
    writer.add("Caption", zone.name);
    writer.add_number("DaylightBias", zone.daylight_bias);
    add_change(writer, "Daylight", zone.to_daylight);
    writer.add_number("StandardBias", 0);
    add_change(writer, "Standard", zone.to_standard);
    writer.add("StandardName", zone.name);
    return writer.finished();
}

}  // namespace tessarine::sample
