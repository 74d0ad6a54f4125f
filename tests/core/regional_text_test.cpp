#include "core/regional_text.h"

#include <gtest/gtest.h>

#include <locale>
#include <string>

#include "core/runtime_error.h"

namespace tessarine {
namespace {

TEST(RegionalText, HasFixedFormsInTheClassicLocale) {
    const RegionalText text;
    EXPECT_EQ(text.date_time({{2004, 3, 7}, {0, 5, 9}}), "3/7/2004 12:05:09 AM");
    EXPECT_EQ(text.time({12, 0, 0}), "12:00:00 PM");
    EXPECT_EQ(text.time({23, 59, 59}), "11:59:59 PM");
}

// Writes as machines do that put direction marks around the parts of a date.
class MarkedDates final : public std::time_put<char> {
    iter_type do_put(iter_type out, std::ios_base& stream, char fill, const std::tm* tm,
                     char conversion, char modifier) const override {
        const std::string mark = "\u200E";
        out = std::copy(mark.begin(), mark.end(), out);
        return time_put::do_put(out, stream, fill, tm, conversion, modifier);
    }
};

TEST(RegionalText, TakesOtherFormsFromTheLocale) {
    const RegionalText text(std::locale(std::locale::classic(), new MarkedDates));
    EXPECT_EQ(text.date_time({{2004, 11, 30}, {23, 59, 58}}), "11/30/04 23:59:58");
}

TEST(RegionalText, ReadsOnlyDatesOfTheCalendar) {
    EXPECT_EQ(date_of_text("2/29/2004"), (Date{2004, 2, 29}));
    EXPECT_EQ(date_of_text("02/09/2004"), (Date{2004, 2, 9}));
    EXPECT_EQ(time_of_text("23:59:09"), (TimeOfDay{23, 59, 9}));
    for (const char* text :
         {"", "full", "2/29/2003", "13/1/2004", "0/1/2004", "1/0/2004", "1/1/99999", "1/1",
          "1/1/2004/1", "1/1/2004 ", " 1/1/2004", "-1/1/2004", "1//2004", "257/1/2004",
          "1/257/2004", "1/1/0", "99999999999/1/2004"})
        EXPECT_THROW(date_of_text(text), RuntimeError) << text;
    for (const char* text : {"24:00:00", "0:60:0", "0:0:60", "1:2", ":::"})
        EXPECT_THROW(time_of_text(text), RuntimeError) << text;
}

TEST(RegionalText, KnowsTheNextDay) {
    EXPECT_EQ(day_after({2004, 11, 30}), (Date{2004, 12, 1}));
    EXPECT_EQ(day_after({2004, 2, 28}), (Date{2004, 2, 29}));
    EXPECT_EQ(day_after({2004, 12, 31}), (Date{2005, 1, 1}));
}

}  // namespace
}  // namespace tessarine
