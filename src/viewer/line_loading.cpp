#include "viewer/line_loading.h"

#include "core/console_state.h"

namespace tessarine {
namespace {

constexpr std::size_t kShortestRecord = 2;

}  // namespace

LineLoading::LineLoading(Console& console, const LogTable& log_table, LoadCounts& counts)
    : console_(console),
      log_(log_table),
      counts_(counts),
      rows_(console, console.Form1.*log_table.table, log_table.types),
      ignored_codes_(console.Form1.IgnoreList) {
    errors_.ignore_from_here();
}

// KEEP(record-counter-stays-at-32767): the step beyond the largest number fails and is ignored, so
// the rest of a long log is shown but not counted. A wider counter looks right; "Total: " tells.
void LineLoading::take_line(std::string_view line) {
    if (line.size() >= kShortestRecord) show_line(EventRecord(line));
    if (!record_counter_.full()) record_counter_.add_one();
}

void LineLoading::show_line(const EventRecord& record) {
    MainForm& form = console_.Form1;
    form.st1.set_count(3, {"Loading record ... ", record_counter_.value(), log_.ending});
    if (form.hideignore.checked && is_ignored(record)) {
        ++counts_.ignored;
        return;
    }
    const ShownType* type = rows_.type_of(record);
    if (type != nullptr && (form.*type->box).value == 0) return;
    rows_.add(record, type);
    const int matches = rows_.highlight(record);
    if (matches > 0) alert_ = true;
    counts_.highlighted += matches;
}

// KEEP(missing-code-counts-as-a-match): where the record has no code, the first test of the walk
// fails and execution goes on inside its body, so any entry at all makes the record an ignored one.
bool LineLoading::is_ignored(const EventRecord& record) {
    return ignored_codes_.entries() > 0 &&
           errors_.passes([&] { return ignored_codes_.count(record.field(Field::Event)) > 0; });
}

}  // namespace tessarine
