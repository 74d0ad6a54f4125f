#include "core/regional_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "core/code_page.h"
#include "core/runtime_error.h"
#include "core/text.h"

namespace tessarine {
namespace {

std::chrono::year_month_day calendar_day(int year, int month, int day) {
    return {std::chrono::year{year}, std::chrono::month{static_cast<unsigned>(month)},
            std::chrono::day{static_cast<unsigned>(day)}};
}

std::chrono::sys_days days_of(const Date& date) {
    return calendar_day(date.year, date.month, date.day);
}

std::tm to_tm(const DateTime& moment) {
    std::tm tm{};
    const std::chrono::sys_days day = days_of(moment.date);
    tm.tm_wday = static_cast<int>(std::chrono::weekday(day).c_encoding());
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

// Numbers that no other part of a date or a time can be taken for.
constexpr DateTime kProbe{.date = {2033, 11, 22}, .time = {0, 34, 56}};

std::string formatted(const std::locale& locale, const DateTime& moment, char conversion) {
    const std::tm tm = to_tm(moment);
    std::ostringstream text;
    text.imbue(locale);
    std::use_facet<std::time_put<char>>(locale).put(std::ostreambuf_iterator<char>(text), text, ' ',
                                                    &tm, conversion);
    return text.str();
}

// The text in the code page. What the page lacks parts two numbers, or is left out at an end.
std::string legible(const std::string& utf8, char separator) {
    std::string text;
    for (const char character : from_utf8(replace_text(utf8, "\u202F", " "))) {
        const bool lost = character == '?';
        if (!lost || (!text.empty() && text.back() != separator))
            text += lost ? separator : character;
    }
    if (!text.empty() && text.back() == separator) text.pop_back();
    return text;
}

bool is_digit(char character) {
    return character >= '0' && character <= '9';
}

// Where the number of that index, from 0, stands in `text`, and how long it is.
std::pair<std::size_t, std::size_t> number_in(std::string_view text, std::size_t index) {
    std::size_t at = 0;
    for (;; --index) {
        while (at < text.size() && !is_digit(text[at])) ++at;
        std::size_t end = at;
        while (end < text.size() && is_digit(text[end])) ++end;
        if (index == 0 || end == text.size()) return {at, end - at};
        at = end;
    }
}

}  // namespace

RegionalText::RegionalText() : hours_(fixed_hours()) {}

RegionalText::RegionalText(const std::locale& locale) : locale_(locale), hours_(fixed_hours()) {
    if (is_plain_locale(locale.name())) return;
    take_date_form();
    HourForms hours;
    if (hours_of(locale, hours)) hours_ = hours;
}

// A form without its year or its day, as one in digits that the code page lacks, is of no use.
void RegionalText::take_date_form() {
    const std::string probe = legible(formatted(locale_, kProbe, 'x'), '/');
    const bool whole_year = probe.find("2033") != std::string::npos;
    if (!whole_year)
        for (std::size_t i = 0; i < 3 && !short_year_; ++i) {
            const auto [at, length] = number_in(probe, i);
            if (probe.substr(at, length) == "33") short_year_ = i;
        }
    fixed_dates_ = !(whole_year || short_year_) || probe.find("22") == std::string::npos;
}

RegionalText::HourForms RegionalText::fixed_hours() {
    HourForms hours;
    for (int hour = 0; hour < 24; ++hour)
        hours[static_cast<std::size_t>(hour)] = {
            std::to_string(hour % 12 == 0 ? 12 : hour % 12) + ":", ":", hour < 12 ? " AM" : " PM"};
    return hours;
}

// False for a form that doesn't tell minutes, seconds, or one hour from another.
bool RegionalText::hours_of(const std::locale& locale, HourForms& hours) {
    for (int hour = 0; hour < 24; ++hour) {
        DateTime probe = kProbe;
        probe.time.hour = hour;
        const std::string text = legible(formatted(locale, probe, 'X'), ':');
        const std::size_t minute = text.find("34");
        const std::size_t second = text.find("56");
        if (minute > text.size() || second > text.size() || second < minute + 2) return false;
        HourForm& form = hours[static_cast<std::size_t>(hour)];
        form = {text.substr(0, minute), text.substr(minute + 2, second - minute - 2),
                text.substr(second + 2)};
        if (std::count(hours.begin(), hours.begin() + hour, form) > 0) return false;
    }
    return true;
}

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
    if (fixed_dates_) return text_of_date(date);
    std::string text = legible(formatted(locale_, {.date = date}, 'x'), '/');
    if (short_year_) {
        const auto [at, length] = number_in(text, *short_year_);
        text.replace(at, length, padded(date.year, 4));
    }
    return text;
}

std::string RegionalText::time(const TimeOfDay& time) const {
    std::string text;
    append_time(text, time);
    return text;
}

void RegionalText::append_time(std::string& text, const TimeOfDay& time) const {
    const HourForm& form = hours_[static_cast<std::size_t>(time.hour)];
    const auto append_two_digits = [&text](int number) {
        text += static_cast<char>('0' + number / 10);
        text += static_cast<char>('0' + number % 10);
    };
    text += form.before;
    append_two_digits(time.minute);
    text += form.between;
    append_two_digits(time.second);
    text += form.after;
}

std::string RegionalText::date_time(const DateTime& moment) const {
    return date(moment.date) + " " + time(moment.time);
}

Date calendar_date(int year, int month, int day) {
    if (year < 100 || year > 9999 || month < 0 || month > 12 || day < 0 || day > 31 ||
        !calendar_day(year, month, day).ok())
        type_mismatch();
    return {year, month, day};
}

TimeOfDay time_of_day(int hour, int minute, int second) {
    if (hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59)
        type_mismatch();
    return {hour, minute, second};
}

Date date_of_text(const std::string& text) {
    const auto [month, day, year] = three_numbers(text, '/');
    return calendar_date(year, month, day);
}

std::string text_of_date(const Date& date) {
    return std::to_string(date.month) + "/" + std::to_string(date.day) + "/" +
           std::to_string(date.year);
}

Date day_after(const Date& date) {
    const std::chrono::year_month_day day(days_of(date) + std::chrono::days{1});
    return {static_cast<int>(day.year()), static_cast<int>(static_cast<unsigned>(day.month())),
            static_cast<int>(static_cast<unsigned>(day.day()))};
}

}  // namespace tessarine
