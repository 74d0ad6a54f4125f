#include "viewer/record_rows.h"

#include <algorithm>

#include "core/console_state.h"
#include "core/text.h"

namespace tessarine {
namespace {

constexpr std::size_t kShortestRecord = 2;

}  // namespace

RecordRows::RecordRows(Console& console, const LogTable& log_table, LoadCounts& counts)
    : console_(console),
      log_(log_table),
      counts_(counts),
      table_(console.Form1.*log_table.table),
      ignored_codes_(console.Form1.IgnoreList),
      alert_codes_(console.Form1.AlertList) {
    errors_.ignore_from_here();
}

// KEEP(record-counter-stays-at-32767): the step beyond the largest number fails and is ignored, so
// the rest of a long log is shown but not counted. A wider counter looks right; "Total: " tells.
void RecordRows::take_line(std::string_view line) {
    if (line.size() >= kShortestRecord) show_line(EventRecord(line));
    if (!record_counter_.full()) record_counter_.add_one();
}

void RecordRows::show_line(const EventRecord& record) {
    MainForm& form = console_.Form1;
    form.st1.set_count(3, {"Loading record ... ", record_counter_.value(), log_.ending});
    if (form.hideignore.checked && is_ignored(record)) {
        ++counts_.ignored;
        return;
    }
    const ShownType* type = type_of(record.field(Field::Type));
    if (type != nullptr && (form.*type->box).value == 0) return;
    // KEEP(unmatched-type-grows-the-last-row): a record of no known type adds no row, but its
    // fields and its colour still go to the row at the end of the table. Dropping it whole looks
    // right.
    if (type != nullptr)
        add_row(record, type->small_icon);
    else
        add_fields(record);
    if (form.highlightpatt.checked) highlight(record);
}

// KEEP(missing-code-counts-as-a-match): where the record has no code, the first test of the walk
// fails and execution goes on inside its body, so any entry at all makes the record an ignored one.
bool RecordRows::is_ignored(const EventRecord& record) {
    return ignored_codes_.entries() > 0 &&
           errors_.passes([&] { return ignored_codes_.count(record.field(Field::Event)) > 0; });
}

const ShownType* RecordRows::type_of(std::string_view word) const {
    const auto found =
        std::find_if(log_.types.begin(), log_.types.end(), [word](const ShownType& type) {
            return same_text(word, type.word.english) || same_text(word, type.word.german);
        });
    return found == log_.types.end() ? nullptr : &*found;
}

// A whole record becomes a row in one step. The others, and those of a sorted table, go step by
// step.
void RecordRows::add_row(const EventRecord& record, int small_icon) {
    if (record.complete() && !table_.sorted()) {
        table_.add_record_row(record.text(), small_icon);
        return;
    }
    table_.add_row(record.field(Field::Type), small_icon);
    add_fields(record);
}

// The row is found anew as the last one for each sub-item, whichever row was added. A field or a
// row that is missing fails its statement and nothing else; asking first comes to the same and
// spares a foreign log millions of failures.
void RecordRows::add_fields(const EventRecord& record) {
    if (table_.count() == 0) return;
    for (int i = 1; i < record.field_count(); ++i) table_.last_row().add_sub_item(record.field(i));
}

// KEEP(alert-entries-count-each): the walk does not stop at a match, so a code that stands twice in
// the list counts twice for one record; and a record without a code matches every entry.
void RecordRows::highlight(const EventRecord& record) {
    int matches = alert_codes_.entries();
    errors_.run([&] { matches = alert_codes_.count(record.field(Field::Event)); });
    if (matches == 0) return;
    if (table_.count() > 0) colour_last_row();
    alert_ = true;
    counts_.highlighted += matches;
}

void RecordRows::colour_last_row() {
    ListControl::Row row = table_.last_row();
    const int last_column = std::min(row.sub_item_count(), RecordText::kFields - 1);
    for (int column = 0; column <= last_column; ++column) row.set_fore_colour(column, kRed);
}

}  // namespace tessarine
