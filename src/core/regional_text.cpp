#include "core/regional_text.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string_view>

#include "core/code_page.h"
#include "core/runtime_error.h"
#include "core/text.h"

namespace tessarine {
namespace {

std::tm to_tm(const DateTime& moment) {
    std::tm tm{};
    tm.tm_year = moment.date.year - 1900;
    tm.tm_mon = moment.date.month - 1;
    tm.tm_mday = moment.date.day;
    tm.tm_hour = moment.time.hour;
    tm.tm_min = moment.time.minute;
    tm.tm_sec = moment.time.second;
    return tm;
}

[[noreturn]] void type_mismatch() {
    throw RuntimeError(ErrorNumber::TypeMismatch, "Type mismatch");
}

// Three numbers joined by `separator`, and nothing else.
std::array<int, 3> three_numbers(std::string_view text, char separator) {
    std::array<int, 3> numbers{};
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        const auto [end, error] =
            std::from_chars(text.data(), text.data() + text.size(), numbers[i]);
        if (error != std::errc{} || numbers[i] < 0) type_mismatch();
        text.remove_prefix(static_cast<std::size_t>(end - text.data()));
        const bool last = i + 1 == numbers.size();
        if (last != text.empty() || (!last && text.front() != separator)) type_mismatch();
        if (!last) text.remove_prefix(1);
    }
    return numbers;
}

std::chrono::year_month_day calendar_day(int year, int month, int day) {
    return {std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
            std::chrono::day{static_cast<unsigned>(day)}};
}

bool is_plain_locale(const std::string& name) {
    return name == "C" || name.rfind("C.", 0) == 0 || name == "POSIX";
}

// The name that the environment gives to the forms of dates and times.
std::string time_locale_name() {
    for (const char* variable : {"LC_ALL", "LC_TIME", "LANG"}) {
        const char* value = std::getenv(variable);
        if (value != nullptr && *value != '\0') return value;
    }
    return "C";
}

}  // namespace

RegionalText::RegionalText(const std::locale& locale)
    : locale_(locale), fixed_forms_(is_plain_locale(locale.name())) {}

RegionalText RegionalText::of_this_machine() {
    const std::string name = time_locale_name();
    if (is_plain_locale(name)) return RegionalText();
    try {
        return RegionalText(std::locale(name));
    } catch (const std::runtime_error&) {
        return RegionalText();  // a locale that is named but not installed
    }
}

std::string RegionalText::date(const Date& date) const {
    return fixed_forms_ ? text_of_date(date) : formatted({.date = date}, 'x');
}

std::string RegionalText::time(const TimeOfDay& time) const {
    if (!fixed_forms_) return formatted({.date = {2000, 1, 1}, .time = time}, 'X');
    const int hour = time.hour % 12 == 0 ? 12 : time.hour % 12;
    return std::to_string(hour) + ":" + padded(time.minute, 2) + ":" + padded(time.second, 2) +
           (time.hour < 12 ? " AM" : " PM");
}

std::string RegionalText::date_time(const DateTime& moment) const {
    return date(moment.date) + " " + time(moment.time);
}

std::string RegionalText::formatted(const DateTime& moment, char conversion) const {
    const std::tm tm = to_tm(moment);
    std::ostringstream text;
    std::use_facet<std::time_put<char>>(locale_).put(std::ostreambuf_iterator<char>(text), text,
                                                     ' ', &tm, conversion);
    return from_utf8(text.str());
}

Date date_of_text(const std::string& text) {
    const auto [month, day, year] = three_numbers(text, '/');
    if (year < 100 || year > 9999 || month > 12 || day > 31 || !calendar_day(year, month, day).ok())
        type_mismatch();
    return {year, month, day};
}

TimeOfDay time_of_text(const std::string& text) {
    const auto [hour, minute, second] = three_numbers(text, ':');
    if (hour > 23 || minute > 59 || second > 59) type_mismatch();
    return {hour, minute, second};
}

std::string text_of_date(const Date& date) {
    return std::to_string(date.month) + "/" + std::to_string(date.day) + "/" +
           std::to_string(date.year);
}

Date day_after(const Date& date) {
    const std::chrono::sys_days next =
        std::chrono::sys_days(calendar_day(date.year, date.month, date.day)) + std::chrono::days{1};
    const std::chrono::year_month_day day(next);
    return {static_cast<int>(day.year()), static_cast<int>(static_cast<unsigned>(day.month())),
            static_cast<int>(static_cast<unsigned>(day.day()))};
}

}  // namespace tessarine
