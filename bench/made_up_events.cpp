#include "bench/made_up_events.h"

#include "bench/log_lines.h"
#include "core/text.h"

namespace tessarine::bench {
namespace {

constexpr std::size_t kEvents = 1'000;
constexpr int kPause = 86;  // seconds from event to event

}  // namespace

MadeUpEvents::MadeUpEvents(const std::string& host) {
    LogLines lines(EventLog::Security, host, Language::English, 1);
    while (events_.size() < kEvents) {
        const std::string_view line = lines.next();
        const EventRecord record(keep(std::string(line.substr(0, line.size() - 2))));
        if (record.complete()) events_.push_back(event_of(record));
    }
}

EventProperties MadeUpEvents::event_of(const EventRecord& record) {
    const int second = static_cast<int>(events_.size()) * kPause;
    std::string stamp = "20041130";
    for (const int part : {second / 3600, second / 60 % 60, second % 60}) stamp += padded(part, 2);
    return {.LogFile = "Security",
            .Type = record.field(Field::Type),
            .TimeGenerated = keep(stamp += ".000000+060"),
            .SourceName = record.field(Field::Source),
            .EventCode = record.field(Field::Event),
            .ComputerName = record.field(Field::Computer),
            .Message = keep(replace_text(record.field(Field::Message), "~", "\r\n")),
            .User = record.field(Field::User)};
}

}  // namespace tessarine::bench
