#include "core/list/list_rows.h"
#include "core/runtime_error.h"

namespace tessarine {

std::string_view ListControl::ConstRow::sub_item(int index) const {
    if (index < 1 || index > sub_item_count())
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange, "Index out of bounds");
    return list_->cell(number_, index);
}

int ListControl::ConstRow::sub_item_count() const {
    const CompactRow& row = list_->rows_[number_];
    if (row.own_row == CompactRow::kNoOwnRow) return RecordText::kFields - 1;
    return static_cast<int>(list_->own_rows_[row.own_row]->cells.size()) - 1;
}

int ListControl::ConstRow::small_icon() const {
    return list_->rows_[number_].small_icon;
}

bool ListControl::ConstRow::selected() const {
    return list_->rows_[number_].selected != 0;
}

bool ListControl::ConstRow::checked() const {
    return list_->rows_[number_].checked != 0;
}

int ListControl::ConstRow::report_icon(int sub_item) const {
    const CompactRow& row = list_->rows_[number_];
    if (sub_item < 1 || sub_item > sub_item_count() || row.own_row == CompactRow::kNoOwnRow)
        return 0;
    return list_->own_rows_[row.own_row]->cells[static_cast<std::size_t>(sub_item)].report_icon;
}

std::uint32_t ListControl::ConstRow::fore_colour(int column) const {
    if (column < 0 || column > sub_item_count()) return kDefaultColour;
    const CompactRow& row = list_->rows_[number_];
    if (row.own_row == CompactRow::kNoOwnRow)
        return (row.red_columns >> column & 1) != 0 ? kRed : kDefaultColour;
    return list_->own_rows_[row.own_row]->cells[static_cast<std::size_t>(column)].colour;
}

void ListControl::Row::add_sub_item(std::string_view text) {
    written_->own_row(number_).cells.push_back({.text = std::string(text)});
    written_->text_changed(position_, sub_item_count());
}

void ListControl::Row::set_sub_item(int index, std::string_view text) {
    sub_item(index);
    written_->own_row(number_).cells[static_cast<std::size_t>(index)].text = text;
    written_->text_changed(position_, index);
}

void ListControl::Row::set_report_icon(int sub_item_index, int icon) {
    sub_item(sub_item_index);
    written_->own_row(number_).cells[static_cast<std::size_t>(sub_item_index)].report_icon = icon;
    written_->mark_changed(position_);
}

void ListControl::Row::set_fore_colour(int column, std::uint32_t colour) {
    if (column != 0) sub_item(column);
    CompactRow& row = written_->rows_[number_];
    const bool stays_compact = row.own_row == CompactRow::kNoOwnRow && colour == kRed;
    if (stays_compact)
        row.red_columns = static_cast<std::uint8_t>(row.red_columns | 1u << column);
    else
        written_->own_row(number_).cells[static_cast<std::size_t>(column)].colour = colour;
    written_->mark_changed(position_);
}

void ListControl::Row::set_selected(bool selected) {
    written_->rows_[number_].selected = selected ? 1 : 0;
    written_->mark_changed(position_);
}

void ListControl::Row::set_checked(bool checked) {
    written_->take_check(position_, checked);
    written_->mark_changed(position_);
}

}  // namespace tessarine
