#include "core/regional_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ctime>
#include <locale>
#include <string>
#include <utility>

#include "core/runtime_error.h"
#include "fakes/environment.h"

namespace tessarine {
namespace {

TEST(RegionalText, HasFixedFormsInTheClassicLocale) {
    const RegionalText text;
    EXPECT_EQ(text.date_time({{2004, 3, 7}, {0, 5, 9}}), "3/7/2004 12:05:09 AM");
    EXPECT_EQ(text.time({12, 0, 0}), "12:00:00 PM");
    EXPECT_EQ(text.time({23, 59, 59}), "11:59:59 PM");
}

struct LocaleForms {
    const char* name;
    const char* date;
    const char* morning;
    const char* evening;
};

// The year is whole also where the locale shortens it, and what the code page lacks parts numbers.
constexpr LocaleForms kForms[] = {
    {"de_DE.UTF-8", "09.03.2004", "06:07:05", "18:07:05"},
    {"en_US.UTF-8", "03/09/2004", "06:07:05 AM", "06:07:05 PM"},
    {"en_GB.UTF-8", "09/03/2004", "06:07:05", "18:07:05"},
    {"ja_JP.UTF-8", "2004/03/09", "06:07:05", "18:07:05"},
};

TEST(RegionalText, HasTheFormsOfTheMachinesLocale) {
    for (const LocaleForms& forms : kForms) {
        SCOPED_TRACE(forms.name);
        if (!fakes::has_locale(forms.name)) GTEST_SKIP() << "the locale is not installed";
        const fakes::Environment environment("LC_ALL", forms.name);
        const RegionalText text = RegionalText::of_this_machine();
        EXPECT_EQ(text.date({2004, 3, 9}), forms.date);
        EXPECT_EQ(text.time({6, 7, 5}), forms.morning);
        EXPECT_EQ(text.time({18, 7, 5}), forms.evening);
    }
    const fakes::Environment environment("LC_ALL", "xx_XX.UTF-8");
    EXPECT_EQ(RegionalText::of_this_machine().date({2004, 3, 9}), "3/9/2004") << "no such locale";
}

// A locale whose dates and times are these texts.
class Written final : public std::time_put<char> {
  public:
    Written(std::string date, std::string time) : date_(std::move(date)), time_(std::move(time)) {}

  private:
    iter_type do_put(iter_type out, std::ios_base&, char, const std::tm* tm, char conversion,
                     char) const override {
        char text[100];
        const std::string& form = conversion == 'x' ? date_ : time_;
        const std::size_t length = std::strftime(text, sizeof text, form.c_str(), tm);
        return std::copy(text, text + length, out);
    }

    std::string date_, time_;
};

std::string written(const std::string& date, const std::string& time) {
    const RegionalText text(std::locale(std::locale::classic(), new Written(date, time)));
    return text.date_time({{2022, 12, 22}, {22, 3, 4}});
}

TEST(RegionalText, WritesWhatCanBeReadLater) {
    EXPECT_EQ(written("\u200E%d\u200E/%m/%y", "%H\u202F%M %S"), "22/12/2022 22 03 04");
    EXPECT_EQ(written("%a %y-%m-%d", "%H:%M:%S"), "Thu 2022-12-22 22:03:04");
    EXPECT_EQ(written("%Y年%m月%d日", "午後%H時 %M分%S秒"), "2022/12/22 22: 03:04");
    // Without a year, without an hour, or with half of the hours.
    EXPECT_EQ(written("%d.%m.", "%M:%S"), "12/22/2022 10:03:04 PM");
    EXPECT_EQ(written("", "午後%I時%M分%S秒"), "12/22/2022 10:03:04 PM");
}

TEST(RegionalText, ReadsOnlyDatesOfTheCalendar) {
    EXPECT_EQ(date_of_text("2/29/2004"), (Date{2004, 2, 29}));
    EXPECT_EQ(date_of_text("02/09/2004"), (Date{2004, 2, 9}));
    EXPECT_EQ(time_of_day(23, 59, 9), (TimeOfDay{23, 59, 9}));
    for (const char* text :
         {"", "full", "2/29/2003", "13/1/2004", "0/1/2004", "1/0/2004", "1/1/99999", "1/1",
          "1/1/2004/1", "1/1/2004 ", " 1/1/2004", "-1/1/2004", "1//2004", "257/1/2004",
          "1/257/2004", "1/1/0", "99999999999/1/2004"})
        EXPECT_THROW(date_of_text(text), RuntimeError) << text;
    EXPECT_THROW(time_of_day(24, 0, 0), RuntimeError);
    EXPECT_THROW(time_of_day(0, 60, 0), RuntimeError);
    EXPECT_THROW(time_of_day(0, 0, 60), RuntimeError);
    EXPECT_THROW(time_of_day(0, -1, 0), RuntimeError);
}

TEST(RegionalText, KnowsTheNextDay) {
    EXPECT_EQ(day_after({2004, 11, 30}), (Date{2004, 12, 1}));
    EXPECT_EQ(day_after({2004, 2, 28}), (Date{2004, 2, 29}));
    EXPECT_EQ(day_after({2004, 12, 31}), (Date{2005, 1, 1}));
}

}  // namespace
}  // namespace tessarine
