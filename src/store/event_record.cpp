#include "store/event_record.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <experimental/simd>
#include <system_error>

#include "core/regional_text.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

constexpr std::string_view kLineEnd = "\r\n";

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

// Puts the pieces of a line one after the other into memory that has room for them.
class LineEnd {
  public:
    explicit LineEnd(char* start) : end_(start) {}

    void add(std::string_view text) { end_ = std::copy(text.begin(), text.end(), end_); }
    void add_field(std::string_view text) {
        add(text);
        *end_++ = '|';
    }

    // The message with each CR LF as one "~"; a lone CR or LF stays as it is. It is the longest
    // piece, so it is copied while it is looked through.
    void add_message(std::string_view message) {
        while (!message.empty()) {
            const std::size_t plain = copy_to_carriage_return(message);
            end_ += plain;
            message.remove_prefix(plain);
            if (message.empty()) return;
            const bool pair = message.substr(0, 2) == "\r\n";
            *end_++ = pair ? '~' : message.front();
            message.remove_prefix(pair ? 2 : 1);
        }
    }

    const char* end() const { return end_; }

  private:
    std::size_t copy_to_carriage_return(std::string_view text) const;

    char* end_;
};

// Returns how many characters stand before the first CR. More may have been copied, within the
// length of the text.
std::size_t LineEnd::copy_to_carriage_return(std::string_view text) const {
    namespace simd = std::experimental;
    using Bytes = simd::native_simd<char>;
    std::size_t at = 0;
    for (; text.size() - at >= Bytes::size(); at += Bytes::size()) {
        const Bytes bytes(text.data() + at, simd::element_aligned);
        bytes.copy_to(end_ + at, simd::element_aligned);
        const auto ends = bytes == '\r';
        if (simd::any_of(ends)) return at + static_cast<std::size_t>(simd::find_first_set(ends));
    }
    for (; at < text.size() && text[at] != '\r'; ++at) end_[at] = text[at];
    return at;
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
    const std::string_view user = event.User.value_or("").empty() ? "N/A" : *event.User;
    time_text_.clear();
    regional_.append_time(time_text_, time_of(stamp));
    const std::array fields = {text_of(event.Type),          std::string_view(date_text_),
                               std::string_view(time_text_), text_of(event.SourceName),
                               text_of(event.EventCode),     user,
                               text_of(event.ComputerName)};
    const std::string_view message = text_of(event.Message);
    std::size_t room = fields.size() + message.size() + kLineEnd.size();
    for (const std::string_view field : fields) room += field.size();
    if (line_.size() < room) line_.resize(room * 2);
    LineEnd line(line_.data());
    for (const std::string_view field : fields) line.add_field(field);
    line.add_message(message);
    line.add(kLineEnd);
    return {line_.data(), static_cast<std::size_t>(line.end() - line_.data())};
}

}  // namespace tessarine
