#include "viewer/line_loading.h"

#include "core/console_state.h"

namespace tessarine {
namespace {

constexpr std::size_t kShortestRecord = 2;

}  // namespace

LineLoading::LineLoading(Load& load, const LoadedLog& log)
    : load_(load),
      log_(log),
      form_(load.console.Form1),
      table_(table_of(form_, log.log)),
      rows_(load.console, table_of(form_, log.log), log.types, load.errors),
      ignored_codes_(form_.IgnoreList) {}

// KEEP(record-counter-stays-at-32767): a wider counter would let "Total: " grow beyond that for a
// long log.
void LineLoading::take_line(std::string_view line) {
    if (line.size() >= kShortestRecord) show_line(EventRecord(line));
    if (!record_counter_.full()) record_counter_.add_one();
}

void LineLoading::show_line(const EventRecord& record) {
    form_.st1.set_count(3, {"Loading record ... ", record_counter_.value(), log_.ending});
    if (form_.hideignore.checked && is_ignored(record)) {
        ++load_.counts.ignored;
        return;
    }
    const ShownType* type = rows_.type_of(record);
    if (type != nullptr && (form_.*type->box).value == 0) return;
    rows_.add(record, type);
    if (table_.count() == 0) return;
    const int matches = rows_.highlight(record);
    if (matches > 0) load_.alerts.set(log_.log);
    load_.counts.highlighted += matches;
}

// KEEP(missing-code-counts-as-a-match): a test that failed for a record without a code would show
// the record, which any entry at all makes an ignored one.
bool LineLoading::is_ignored(const EventRecord& record) {
    return ignored_codes_.entries() > 0 && load_.errors.passes([&] {
        return ignored_codes_.count(record.field(Field::Event)) > 0;
    });
}

}  // namespace tessarine
