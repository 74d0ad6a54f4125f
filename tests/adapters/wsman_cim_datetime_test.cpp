#include "adapters/wsman/records/cim_datetime.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

std::string dmtf_of(std::string_view text, std::chrono::minutes offset = {}) {
    const auto instant = parse_cim_datetime(text);
    return instant ? dmtf_text(*instant, offset) : "unreadable";
}

TEST(CimDatetime, BecomesDmtfText) {
    struct Case {
        std::string_view wire, dmtf;
    };
    const Case cases[] = {
        {"2013-04-15T16:28:47Z", "20130415162847.000000+000"},
        {"2013-04-15T16:28:47.7Z", "20130415162847.700000+000"},
        {"2013-04-15T16:28:47.73517Z", "20130415162847.735170+000"},
        {"2013-04-15T16:28:47.123456789Z", "20130415162847.123456+000"},
        {"2013-04-15T16:28:47", "20130415162847.000000+000"},
        {"2004-12-01T00:30:00.5+01:00", "20041130233000.500000+000"},
        {"2004-02-28T23:30:00-05:30", "20040229050000.000000+000"},
        {"1601-01-01T00:00:00Z", "16010101000000.000000+000"},
        {"9999-12-30T23:59:59.999999Z", "99991230235959.999999+000"},
    };
    for (const Case& c : cases) EXPECT_EQ(dmtf_of(c.wire), c.dmtf) << c.wire;
}

TEST(CimDatetime, ShowsTheDigitsOfItsOffset) {
    EXPECT_EQ(dmtf_of("2004-11-30T22:59:59Z", std::chrono::hours(1)), "20041130235959.000000+060");
    EXPECT_EQ(dmtf_of("2005-01-01T03:00:00.25Z", std::chrono::hours(-5)),
              "20041231220000.250000-300");
}

TEST(CimDatetime, IsRefusedInAnyOtherForm) {
    for (const std::string_view text :
         {"", "2013-04-15", "2013-02-29T00:00:00Z", "2013-13-01T00:00:00Z", "2013-04-15T24:00:00Z",
          "2013-04-15T16:60:00Z", "2013-04-15T16:28:60Z", "2013-04-15 16:28:47Z",
          "2013-04-15T16:28:47.Z", "2013-04-15T16:28:47.1234567890Z", "2013-04-15T16:28:47z",
          "2013-04-15T16:28:47+1:00", "2013-04-15T16:28:47Z ", "20130415162847.000000+000",
          "0001-01-01T00:00:00Z", "0100-01-02T00:00:00+00:01", "9999-12-31T00:00:00Z",
          "9999-12-30T23:59:00-00:01"})
        EXPECT_EQ(dmtf_of(text), "unreadable") << text;
}

}  // namespace
}  // namespace tessarine
