// Measures the small parts that the console's work consists of, each on the same 4 MB of a log and
// beside std::memchr, so that their speeds can be compared from machine to machine.
#include <benchmark/benchmark.h>

#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/code_tally.h"
#include "bench/idle_platform.h"
#include "bench/log_lines.h"
#include "bench/made_up_events.h"
#include "search/text_finder.h"
#include "store/event_record.h"
#include "store/line_bounds.h"
#include "tables/code_matches.h"
#include "tables/table_rows.h"

namespace tessarine::bench {
namespace {

constexpr std::size_t kBlock = std::size_t{4} << 20;
constexpr int kListedCodes = 50;

std::string made_block() {
    LogLines lines(EventLog::Security, "HOST01", Language::English, 1);
    std::string block;
    while (block.size() < kBlock) block += lines.next();
    block.resize(kBlock);
    return block;
}

/// Calls `see` with each line that isn't empty.
template <class See>
void each_line(std::string_view block, See&& see) {
    for (std::size_t begin = 0; begin < block.size();) {
        const std::size_t end = line_end(block, begin);
        if (end > begin) see(block.substr(begin, end - begin));
        begin = end + 1;
    }
}

class Parts {
  public:
    Parts();

    void add_all();

  private:
    void add_record_writer();
    template <class Work>
    void add(const char* name, Work work);
    /// The same for a part that takes one record after the other.
    template <class Take>
    void add_for_records(const char* name, Take take);

    const std::string block_ = made_block();
    std::vector<EventRecord> records_;
    const MadeUpEvents events_{"HOST01"};
    IdlePlatform idle_;
    Console console_{idle_.platform()};
    const ErrorRegime errors_{};
};

Parts::Parts() {
    each_line(block_, [&](std::string_view line) {
        if (const EventRecord record(line); record.complete()) records_.push_back(record);
    });
    for (int i = 0; i < kListedCodes; ++i)
        console_.Form1.AlertList.add_row(std::to_string(kFirstCode + 2 * i * kCodeStep), 0);
}

template <class Work>
void Parts::add(const char* name, Work work) {
    benchmark::RegisterBenchmark(name, [work](benchmark::State& state) mutable {
        for (auto _ : state) benchmark::DoNotOptimize(work());
        state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(kBlock));
    });
}

template <class Take>
void Parts::add_for_records(const char* name, Take take) {
    add(name, [this, take]() mutable {
        std::size_t sum = 0;
        for (const EventRecord& record : records_) sum += take(record);
        return sum;
    });
}

void Parts::add_all() {
    add("memchr", [this] { return std::memchr(block_.data(), '\0', block_.size()); });
    for (const char* text : {"quota exceeded", "on a restarted session"})
        add((std::string("finder: ") + text).c_str(),
            [this, finder = TextFinder(text)] { return finder.find(block_, 0); });
    add("line bounds", [this] {
        std::size_t lines = 0;
        each_line(block_, [&](std::string_view) { ++lines; });
        return lines;
    });
    add_for_records("splitter", [](const EventRecord& record) {
        return static_cast<std::size_t>(EventRecord(record.text().line).field_count());
    });
    TableRows rows(console_, console_.Form1.SecurityList, kSecurityTypes, errors_);
    add_for_records("type", [rows](const EventRecord& record) {
        return rows.type_of(record) == nullptr ? std::size_t{0} : 1;
    });
    CodeMatches alerts(console_.Form1.AlertList);
    add_for_records("list look-up", [alerts](const EventRecord& record) mutable {
        return static_cast<std::size_t>(alerts.count(record.field(Field::Event)));
    });
    add_for_records("tally", [tally = CodeTally()](const EventRecord& record) mutable {
        tally.count(record.field(Field::Event), record.field(Field::Source), kIconAuditSuccess);
        return std::size_t{1};
    });
    add_record_writer();
}

// The bytes are those of the lines that it makes, not of the block.
void Parts::add_record_writer() {
    benchmark::RegisterBenchmark("record writer", [this](benchmark::State& state) {
        RecordWriter writer(console_.regional);
        std::size_t bytes = 0;
        for (auto _ : state)
            for (const EventProperties& event : events_.all())
                bytes += writer.line_of(event).size();
        state.SetBytesProcessed(static_cast<std::int64_t>(bytes));
    });
}

}  // namespace
}  // namespace tessarine::bench

int main(int count, char** words) {
    benchmark::Initialize(&count, words);
    if (benchmark::ReportUnrecognizedArguments(count, words)) return 2;
    tessarine::bench::Parts parts;
    parts.add_all();
    benchmark::RunSpecifiedBenchmarks();
}
