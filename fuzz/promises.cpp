#include "fuzz/promises.h"

#include <cstdio>
#include <cstdlib>
#include <string>

#include "adapters/wsman/basics/limits.h"
#include "adapters/wsman/records/spooled_events.h"
#include "core/regional_text.h"
#include "store/event_record.h"

namespace tessarine::fuzz {

void hold(bool kept, const char* promise) {
    if (kept) return;
    std::fprintf(stderr, "Not kept: %s\n", promise);
    std::abort();
}

std::size_t hold_for_records(std::string_view records) {
    const RegionalText regional;
    RecordWriter writer(regional);
    std::size_t count = 0;
    std::string written;
    std::string_view unread = records;
    for (EventProperties event; take_event(unread, event); ++count) {
        append_event(written, event);
        for (const EventField& field : kEventFields)
            hold((event.*field.property).value_or("").size() <= limits::kElementText,
                 "no text of a record is longer than a host may make it");
        if (!event.TimeGenerated) continue;
        std::string_view line = writer.line_of(event);
        hold(line.ends_with("\r\n"), "the line of a record has an end");
        hold(EventRecord(line).complete(), "the line of a record has all fields");
    }
    hold(unread.empty(), "the last record is whole");
    hold(written == records, "a record reads as it was written");
    return count;
}

}  // namespace tessarine::fuzz
