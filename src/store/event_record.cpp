#include "store/event_record.h"

#include <charconv>
#include <cstring>
#include <system_error>

#include "core/regional_text.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

std::string_view text_of(const EventProperties::Property& property) {
    return property.value_or(std::string_view());
}

// What `length` characters from `position`, counted from 1, write out as a number, as far as the
// stamp goes; below 0 when that is none.
int number_at(std::string_view stamp, std::size_t position, std::size_t length) {
    if (position > stamp.size()) return -1;
    const std::string_view digits = stamp.substr(position - 1, length);
    const char* const digits_end = digits.data() + digits.size();
    int number = -1;
    const auto [end, error] = std::from_chars(digits.data(), digits_end, number);
    return error == std::errc() && end == digits_end ? number : -1;
}

Date date_of(std::string_view stamp) {
    return calendar_date(number_at(stamp, 1, 4), number_at(stamp, 5, 2), number_at(stamp, 7, 2));
}

TimeOfDay time_of(std::string_view stamp) {
    return time_of_day(number_at(stamp, 9, 2), number_at(stamp, 11, 2), number_at(stamp, 13, 2));
}

// Appends the message with each CR LF as one "~"; a lone CR or LF stays as it is.
void append_message(std::string& line, std::string_view message) {
    std::size_t pair = message.find("\r\n");
    while (pair != std::string_view::npos) {
        line.append(message.substr(0, pair)) += '~';
        message.remove_prefix(pair + 2);
        pair = message.find("\r\n");
    }
    line.append(message);
}

}  // namespace

EventRecord::EventRecord(std::string_view line) {
    text_.line = line;
    std::size_t start = 0;
    while (count_ < RecordText::kFields && start <= line.size()) {
        const auto* bar =
            static_cast<const char*>(std::memchr(line.data() + start, '|', line.size() - start));
        const std::size_t end =
            bar != nullptr ? static_cast<std::size_t>(bar - line.data()) : line.size();
        text_.ends[static_cast<std::size_t>(count_++)] = static_cast<std::uint32_t>(end);
        start = end + 1;
    }
}

std::string_view EventRecord::field(int index) const {
    if (index < 0 || index >= count_)
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange, "Subscript out of range");
    const auto i = static_cast<std::size_t>(index);
    const std::uint32_t start = i == 0 ? 0 : text_.ends[i - 1] + 1;
    return text_.line.substr(start, text_.ends[i] - start);
}

std::string_view RecordWriter::line_of(const EventProperties& event) {
    const std::string_view stamp = text_of(event.TimeGenerated);
    if (date_key_.empty() || stamp.substr(0, 8) != date_key_) {
        date_text_ = regional_.date(date_of(stamp));
        date_key_ = stamp.substr(0, 8);
    }
    const std::string_view user = text_of(event.User);
    line_.assign(text_of(event.Type)) += '|';
    line_.append(date_text_) += '|';
    regional_.append_time(line_, time_of(stamp));
    line_ += '|';
    line_.append(text_of(event.SourceName)) += '|';
    line_.append(text_of(event.EventCode)) += '|';
    line_.append(user.empty() ? "N/A" : user) += '|';
    line_.append(text_of(event.ComputerName)) += '|';
    append_message(line_, text_of(event.Message));
    return line_.append("\r\n");
}

}  // namespace tessarine
