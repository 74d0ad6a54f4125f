#include "core/list/list_control.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "core/list/list_rows.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

constexpr std::uint32_t kLongestHead = std::numeric_limits<std::uint16_t>::max();

[[noreturn]] void out_of_bounds() {
    throw RuntimeError(ErrorNumber::SubscriptOutOfRange, "Index out of bounds");
}

}  // namespace

ListControl::ListControl(std::vector<ListColumn> list_columns, std::pmr::memory_resource* memory)
    : columns(std::move(list_columns)), rows_(memory), texts_(memory) {
    static_assert(sizeof(CompactRow) == 32);
}

ListControl::~ListControl() = default;

ListControl::ConstRow ListControl::row(int position) const {
    return {*this, number_at(position)};
}

ListControl::Row ListControl::row(int position) {
    return {*this, position, number_at(position)};
}

ListControl::Row ListControl::last_row() {
    return row(count());
}

void ListControl::clear() {
    rows_.clear();
    own_rows_.clear();
    order_.clear();
    texts_.clear();
    in_order_ = true;
    selected_item_ = 0;
    changes_ = {.reset = true};
}

ListControl::Row ListControl::add_row(std::string_view text, int small_icon) {
    const auto number = static_cast<RowOrder::RowNumber>(rows_.size());
    CompactRow added;
    added.small_icon = static_cast<std::uint8_t>(small_icon & 0x3F);
    added.own_row = static_cast<std::uint32_t>(own_rows_.size());
    own_rows_.push_back(std::make_unique<OwnRow>());
    own_rows_.back()->cells.push_back({.text = std::string(text)});
    rows_.push_back(added);
    int position = count() + 1;
    if (sorted_) {
        position = static_cast<int>(order_.insert_sorted(number, sort_rule())) + 1;
        if (selected_item_ >= position) ++selected_item_;
        changes_.reset = true;
    } else {
        order_.append(number);
        mark_changed(position);
    }
    if (selected_item_ == 0) selected_item_ = 1;
    return {*this, position, number};
}

void ListControl::add_record_row(const RecordText& record, int small_icon) {
    order_.append(static_cast<RowOrder::RowNumber>(rows_.size()));
    CompactRow& added = rows_.emplace_back();
    added.small_icon = static_cast<std::uint8_t>(small_icon & 0x3F);
    if (record.ends[RecordText::kFields - 2] <= kLongestHead) {
        for (std::size_t i = 0; i < added.head_ends.size(); ++i)
            added.head_ends[i] = static_cast<std::uint16_t>(record.ends[i]);
        added.end = record.ends[RecordText::kFields - 1];
        added.text = texts_.keep(record.line.substr(0, added.end));
    } else {
        added.own_row = static_cast<std::uint32_t>(own_rows_.size());
        own_rows_.push_back(std::make_unique<OwnRow>());
        std::uint32_t start = 0;
        for (const std::uint32_t end : record.ends) {
            const auto field = record.line.substr(start, end - start);
            own_rows_.back()->cells.push_back({.text = std::string(field)});
            start = end + 1;
        }
    }
    if (selected_item_ == 0) selected_item_ = 1;
    mark_changed(count());
}

void ListControl::remove_row(int position) {
    rows_[number_at(position)].selected = 0;
    order_.remove(static_cast<std::size_t>(position - 1));
    if (selected_item_ > position || selected_item_ > count()) --selected_item_;
    changes_.reset = true;
}

int ListControl::selected_count() const {
    int selected = 0;
    for (int position = 1; position <= count(); ++position)
        if (row(position).selected()) ++selected;
    return selected;
}

void ListControl::take_selection(int first, int last, bool selected) {
    for (int position = first; position <= last; ++position)
        rows_[number_at(position)].selected = selected ? 1 : 0;
}

void ListControl::take_check(int position, bool checked) {
    rows_[number_at(position)].checked = checked ? 1 : 0;
}

void ListControl::set_selected_item(int position) {
    if (position >= 1 && position <= count()) selected_item_ = position;
}

ListChanges ListControl::take_changes() {
    return std::exchange(changes_, ListChanges{});
}

RowOrder::RowNumber ListControl::number_at(int position) const {
    if (position < 1 || position > count()) out_of_bounds();
    return order_.at(static_cast<std::size_t>(position - 1));
}

// The text of a cell; empty after the row's last one.
std::string_view ListControl::cell(RowOrder::RowNumber row, int column) const {
    const CompactRow& compact = rows_[row];
    if (compact.own_row != CompactRow::kNoOwnRow) {
        const auto& cells = own_rows_[compact.own_row]->cells;
        const auto index = static_cast<std::size_t>(column);
        return index < cells.size() ? std::string_view(cells[index].text) : std::string_view();
    }
    if (column >= RecordText::kFields) return {};
    const auto end_of = [&](int i) -> std::uint32_t {
        return i == RecordText::kFields - 1 ? compact.end
                                            : compact.head_ends[static_cast<std::size_t>(i)];
    };
    const std::uint32_t start = column == 0 ? 0 : end_of(column - 1) + 1;
    return {compact.text + start, end_of(column) - start};
}

ListControl::OwnRow& ListControl::own_row(RowOrder::RowNumber row) {
    CompactRow& compact = rows_[row];
    if (compact.own_row == CompactRow::kNoOwnRow) {
        auto own = std::make_unique<OwnRow>();
        for (int i = 0; i < RecordText::kFields; ++i)
            own->cells.push_back(
                {.text = std::string(cell(row, i)),
                 .colour = (compact.red_columns >> i & 1) != 0 ? kRed : kDefaultColour});
        compact.own_row = static_cast<std::uint32_t>(own_rows_.size());
        own_rows_.push_back(std::move(own));
    }
    return *own_rows_[compact.own_row];
}

void ListControl::mark_changed(int position) {
    if (changes_.first > changes_.last) {
        changes_.first = changes_.last = position;
        return;
    }
    changes_.first = std::min(changes_.first, position);
    changes_.last = std::max(changes_.last, position);
}

}  // namespace tessarine
