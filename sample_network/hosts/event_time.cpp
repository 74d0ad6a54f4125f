#include "sample_network/hosts/event_time.h"

#include <algorithm>
#include <charconv>

namespace tessarine::sample {
namespace {

bool all_digits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

// For texts that are known to be digits.
int number(std::string_view digits) {
    int value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

void append_digits(std::string& target, unsigned value, int digits) {
    char buffer[10];
    for (int i = digits; i-- > 0; value /= 10) buffer[i] = static_cast<char>('0' + value % 10);
    target.append(buffer, static_cast<std::size_t>(digits));
}

std::optional<std::chrono::sys_days> valid_day(int year, int month, int day) {
    const std::chrono::year_month_day date{std::chrono::year{year},
                                           std::chrono::month(static_cast<unsigned>(month)),
                                           std::chrono::day(static_cast<unsigned>(day))};
    if (!date.ok()) return std::nullopt;
    return std::chrono::sys_days{date};
}

void append_date(std::string& target, std::chrono::sys_days day) {
    const std::chrono::year_month_day date{day};
    append_digits(target, static_cast<unsigned>(static_cast<int>(date.year())), 4);
    target += '-';
    append_digits(target, static_cast<unsigned>(date.month()), 2);
    target += '-';
    append_digits(target, static_cast<unsigned>(date.day()), 2);
}

void append_time(std::string& target, std::chrono::hh_mm_ss<std::chrono::microseconds> time) {
    append_digits(target, static_cast<unsigned>(time.hours().count()), 2);
    target += ':';
    append_digits(target, static_cast<unsigned>(time.minutes().count()), 2);
    target += ':';
    append_digits(target, static_cast<unsigned>(time.seconds().count()), 2);
    if (time.subseconds().count() == 0) return;
    target += '.';
    append_digits(target, static_cast<unsigned>(time.subseconds().count()), 6);
    while (target.back() == '0') target.pop_back();
}

}  // namespace

std::optional<DmtfTime> parse_dmtf(std::string_view text) {
    constexpr std::size_t kLength = 25;
    if (text.size() != kLength || text[14] != '.' || (text[21] != '+' && text[21] != '-') ||
        !all_digits(text.substr(0, 14)) || !all_digits(text.substr(15, 6)) ||
        !all_digits(text.substr(22)))
        return std::nullopt;
    const auto field = [&](std::size_t at, std::size_t length) {
        return number(text.substr(at, length));
    };
    const auto day = valid_day(field(0, 4), field(4, 2), field(6, 2));
    if (!day || field(8, 2) > 23 || field(10, 2) > 59 || field(12, 2) > 59) return std::nullopt;
    const std::chrono::minutes offset{text[21] == '-' ? -field(22, 3) : field(22, 3)};
    return DmtfTime{*day + std::chrono::hours{field(8, 2)} + std::chrono::minutes{field(10, 2)} +
                        std::chrono::seconds{field(12, 2)} +
                        std::chrono::microseconds{field(15, 6)} - offset,
                    offset};
}

void append_cim_datetime(std::string& target, Instant instant) {
    const auto day = std::chrono::floor<std::chrono::days>(instant);
    append_date(target, day);
    target += 'T';
    append_time(target, std::chrono::hh_mm_ss{instant - Instant{day}});
    target += 'Z';
}

std::optional<std::chrono::sys_days> parse_day(std::string_view text) {
    if (text.size() != 10 || text[4] != '-' || text[7] != '-' || !all_digits(text.substr(0, 4)) ||
        !all_digits(text.substr(5, 2)) || !all_digits(text.substr(8)))
        return std::nullopt;
    return valid_day(number(text.substr(0, 4)), number(text.substr(5, 2)), number(text.substr(8)));
}

}  // namespace tessarine::sample
