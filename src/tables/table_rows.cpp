#include "tables/table_rows.h"

#include <algorithm>

#include "core/console_state.h"
#include "core/text.h"

namespace tessarine {

TableRows::TableRows(Console& console, ListControl& table, std::span<const ShownType> types,
                     const ErrorRegime& errors)
    : console_(console),
      table_(table),
      types_(types),
      alert_codes_(console.Form1.AlertList),
      errors_(errors) {}

const ShownType* TableRows::type_of(const EventRecord& record) const {
    const std::string_view word = record.field(Field::Type);
    const auto found = std::find_if(types_.begin(), types_.end(), [word](const ShownType& type) {
        return same_text(word, type.word.english) || same_text(word, type.word.german);
    });
    return found == types_.end() ? nullptr : &*found;
}

// KEEP(unmatched-type-grows-the-last-row): passing over a record of no known type would leave the
// last row as it was.
void TableRows::add(const EventRecord& record, const ShownType* type) {
    if (type != nullptr)
        add_row(record, type->small_icon);
    else
        add_fields(record);
}

// A whole record becomes a row in one step. The others, and those of a sorted table, go step by
// step.
void TableRows::add_row(const EventRecord& record, int small_icon) {
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
void TableRows::add_fields(const EventRecord& record) {
    if (table_.count() == 0) return;
    for (int i = 1; i < record.field_count(); ++i) table_.last_row().add_sub_item(record.field(i));
}

// KEEP(alert-entries-count-each): stopping at the first match would lower "Highlighted:" for codes
// that stand twice in the list, and for records without a code.
int TableRows::highlight(const EventRecord& record) {
    if (!console_.Form1.highlightpatt.checked) return 0;
    int matches = alert_codes_.entries();
    errors_.run([&] { matches = alert_codes_.count(record.field(Field::Event)); });
    if (matches > 0 && table_.count() > 0) colour_last_row();
    return matches;
}

void TableRows::colour_last_row() {
    ListControl::Row row = table_.last_row();
    const int last_column = std::min(row.sub_item_count(), RecordText::kFields - 1);
    for (int column = 0; column <= last_column; ++column) row.set_fore_colour(column, kRed);
}

}  // namespace tessarine
