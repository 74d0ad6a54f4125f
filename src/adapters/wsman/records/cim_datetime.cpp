#include "adapters/wsman/records/cim_datetime.h"

#include <algorithm>
#include <cstdint>

#include "adapters/wsman/basics/ascii.h"

namespace tessarine {
namespace {

constexpr std::string_view kSecondsForm = "0000-00-00T00:00:00";
constexpr std::size_t kMostFractionDigits = 9;

// No clock is a day away from UTC.
constexpr UtcTime kFirst = std::chrono::sys_days(std::chrono::year(100) / 1 / 2);
constexpr UtcTime kEnd = std::chrono::sys_days(std::chrono::year(9999) / 12 / 31);

// Whether `text` is like `form`, in which a "0" stands for any digit.
bool has_form(std::string_view text, std::string_view form) {
    return std::equal(text.begin(), text.end(), form.begin(), form.end(),
                      [](char c, char f) { return f == '0' ? is_ascii_digit(c) : c == f; });
}

int number(std::string_view digits) {
    int value = 0;
    for (const char digit : digits) value = value * 10 + (digit - '0');
    return value;
}

std::optional<UtcTime> parse_to_seconds(std::string_view text) {
    if (!has_form(text, kSecondsForm)) return std::nullopt;
    const auto part = [&](std::size_t at) { return number(text.substr(at, 2)); };
    const std::chrono::year_month_day date{std::chrono::year(number(text.substr(0, 4))),
                                           std::chrono::month(static_cast<unsigned>(part(5))),
                                           std::chrono::day(static_cast<unsigned>(part(8)))};
    if (!date.ok() || part(11) > 23 || part(14) > 59 || part(17) > 59) return std::nullopt;
    return std::chrono::sys_days(date) + std::chrono::hours(part(11)) +
           std::chrono::minutes(part(14)) + std::chrono::seconds(part(17));
}

// Takes a point and its digits off the front of `text`, where it begins with one.
std::optional<std::chrono::microseconds> take_fraction(std::string_view& text) {
    if (text.empty() || text.front() != '.') return std::chrono::microseconds(0);
    const std::size_t end = std::min(text.find_first_not_of("0123456789", 1), text.size());
    std::string digits(text.substr(1, end - 1));
    if (digits.empty() || digits.size() > kMostFractionDigits) return std::nullopt;
    text.remove_prefix(end);
    digits.resize(6, '0');
    return std::chrono::microseconds(number(digits));
}

std::optional<std::chrono::minutes> parse_zone(std::string_view text) {
    if (text.empty() || text == "Z") return std::chrono::minutes(0);
    if (!has_form(text, "+00:00") && !has_form(text, "-00:00")) return std::nullopt;
    const std::chrono::minutes offset = std::chrono::hours(number(text.substr(1, 2))) +
                                        std::chrono::minutes(number(text.substr(4)));
    return text.front() == '-' ? -offset : offset;
}

std::string padded(std::int64_t value, std::size_t digits) {
    const std::string plain = std::to_string(value);
    return std::string(digits - std::min(digits, plain.size()), '0') + plain;
}

}  // namespace

std::optional<UtcTime> parse_cim_datetime(std::string_view text) {
    const auto seconds = parse_to_seconds(text.substr(0, kSecondsForm.size()));
    if (!seconds) return std::nullopt;
    text.remove_prefix(kSecondsForm.size());
    const auto fraction = take_fraction(text);
    const auto zone = parse_zone(text);
    if (!fraction || !zone) return std::nullopt;
    const UtcTime instant = *seconds + *fraction - *zone;
    if (instant < kFirst || instant >= kEnd) return std::nullopt;
    return instant;
}

std::string dmtf_text(UtcTime instant, std::chrono::minutes offset) {
    const UtcTime shown = instant + offset;
    const auto day = std::chrono::floor<std::chrono::days>(shown);
    const std::chrono::year_month_day date(day);
    const std::chrono::hh_mm_ss clock(shown - day);
    return padded(int{date.year()}, 4) + padded(unsigned{date.month()}, 2) +
           padded(unsigned{date.day()}, 2) + padded(clock.hours().count(), 2) +
           padded(clock.minutes().count(), 2) + padded(clock.seconds().count(), 2) + "." +
           padded(clock.subseconds().count(), 6) + (offset.count() < 0 ? "-" : "+") +
           padded(std::chrono::abs(offset).count(), 3);
}

}  // namespace tessarine
