// Times: as a host sends them, as its clock shows them, as DMTF text, and as the event files show
// them. The last bytes of the input are the host's time zone.
#include <fuzzer/FuzzedDataProvider.h>

#include <algorithm>
#include <string>

#include "adapters/wsman/records/cim_datetime.h"
#include "adapters/wsman/records/host_clock.h"
#include "core/regional_text.h"
#include "fuzz/promises.h"
#include "store/event_record.h"

namespace tessarine::fuzz {
namespace {

using std::chrono::minutes;

ClockChange change_in(FuzzedDataProvider& input) {
    const auto number = [&] { return int{input.ConsumeIntegral<std::int8_t>()}; };
    return {.year = input.ConsumeBool() ? 2000 + number() : 0,
            .month = number(),
            .day = number(),
            .day_of_week = number(),
            .hour = number(),
            .minute = number(),
            .second = number(),
            .millisecond = number()};
}

HostClock clock_in(FuzzedDataProvider& input) {
    const auto offset = [&] { return minutes(input.ConsumeIntegral<std::int16_t>()); };
    const TimeZone zone{.bias = offset(),
                        .daylight_bias = offset(),
                        .to_standard = change_in(input),
                        .to_daylight = change_in(input)};
    return HostClock::of(zone).value_or(HostClock());
}

int number(const std::string& text, std::size_t at, std::size_t length) {
    return std::stoi(text.substr(at, length));
}

bool is_dmtf(std::string_view text) {
    constexpr std::string_view kForm = "00000000000000.000000+000";
    return std::equal(text.begin(), text.end(), kForm.begin(), kForm.end(), [](char c, char f) {
        if (f == '+') return c == '+' || c == '-';
        return f == '0' ? c >= '0' && c <= '9' : c == f;
    });
}

// The instant that a DMTF text tells.
UtcTime instant_of(const std::string& text) {
    const std::chrono::year_month_day day{
        std::chrono::year(number(text, 0, 4)),
        std::chrono::month(static_cast<unsigned>(number(text, 4, 2))),
        std::chrono::day(static_cast<unsigned>(number(text, 6, 2)))};
    hold(day.ok(), "a DMTF text has a day of the calendar");
    return std::chrono::sys_days(day) + std::chrono::hours(number(text, 8, 2)) +
           minutes(number(text, 10, 2)) + std::chrono::seconds(number(text, 12, 2)) +
           std::chrono::microseconds(number(text, 15, 6)) - minutes(number(text, 21, 4));
}

std::string line_of(const std::string& stamp) {
    const RegionalText regional;
    return std::string(RecordWriter(regional).line_of({.TimeGenerated = stamp}));
}

// "|month/day/year|hour:minute:second AM|" as the fixed forms have it.
std::string shown(const std::string& text) {
    const RegionalText regional;
    return "|" + regional.date({number(text, 0, 4), number(text, 4, 2), number(text, 6, 2)}) + "|" +
           regional.time({number(text, 8, 2), number(text, 10, 2), number(text, 12, 2)}) + "|";
}

void hold_for_instant(UtcTime instant, minutes offset) {
    const std::string text = dmtf_text(instant, offset);
    hold(is_dmtf(text), "a DMTF text has its form");
    hold(instant_of(text) == instant, "a DMTF text tells the instant");
    hold(line_of(text).starts_with(shown(text)), "the event files show the digits");
    const std::string xml = text.substr(0, 4) + "-" + text.substr(4, 2) + "-" + text.substr(6, 2) +
                            "T" + text.substr(8, 2) + ":" + text.substr(10, 2) + ":" +
                            text.substr(12, 9);
    hold(offset != minutes(0) || parse_cim_datetime(xml) == instant, "both forms tell the same");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    FuzzedDataProvider input(data, size);
    const HostClock clock = clock_in(input);
    const std::string text = input.ConsumeRemainingBytesAsString();
    if (const auto instant = parse_cim_datetime(text))
        hold_for_instant(*instant, clock.offset_at(*instant));
    succeeds([&] {
        const std::string line = line_of(text);
        hold(EventRecord(line).complete(), "a line has all its fields");
    });
    return 0;
}

}  // namespace tessarine::fuzz
