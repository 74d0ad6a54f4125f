#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/code_page.h"
#include "core/list/list_control.h"
#include "core/text.h"

namespace tessarine {
namespace {

// The first eight characters, folded, as a number that stands in their order: most comparisons end
// with it, without a look at the rows' texts.
std::uint64_t head_of(std::string_view text) {
    std::uint64_t head = 0;
    for (std::size_t i = 0; i < sizeof head; ++i)
        head = head << 8 | (i < text.size() ? lower_case(static_cast<unsigned char>(text[i])) : 0u);
    return head;
}

struct KeyedRow {
    std::uint64_t head;
    RowOrder::RowNumber number;
};

}  // namespace

void ListControl::set_sorted(bool sorted) {
    sorted_ = sorted;
    if (sorted_) sort_rows();
}

void ListControl::sort_by(int column, SortOrder order) {
    sort_key_ = column;
    sort_order_ = order;
    set_sorted(true);
}

// The selected row is the same afterwards, wherever it stands then.
void ListControl::sort_rows() {
    const RowOrder::Before before = sort_rule();
    const bool ascending = sort_order_ == SortOrder::Ascending;
    std::vector<RowOrder::RowNumber> numbers = order_.rows();
    const auto selected = selected_item_ == 0 ? 0 : number_at(selected_item_);
    std::vector<KeyedRow> rows;
    rows.reserve(numbers.size());
    for (const auto number : numbers) rows.push_back({head_of(cell(number, sort_key_)), number});
    std::stable_sort(rows.begin(), rows.end(), [&](const KeyedRow& left, const KeyedRow& right) {
        if (left.head != right.head) return (left.head < right.head) == ascending;
        return before(left.number, right.number);
    });
    std::transform(rows.begin(), rows.end(), numbers.begin(),
                   [](const KeyedRow& row) { return row.number; });
    order_.arrange(numbers);
    if (selected_item_ != 0)
        selected_item_ = 1 + static_cast<int>(std::find(numbers.begin(), numbers.end(), selected) -
                                              numbers.begin());
    in_order_ = true;
    changes_.reset = true;
}

// A row that has come to stand out of order puts the whole list out of it, until it is sorted
// again.
void ListControl::text_changed(int position, int column) {
    mark_changed(position);
    if (!in_order() || column != sort_key_) return;
    const RowOrder::Before before = sort_rule();
    const auto wrong = [&](int upper) {
        return upper >= 1 && upper < count() && before(number_at(upper + 1), number_at(upper));
    };
    in_order_ = !wrong(position - 1) && !wrong(position);
}

RowOrder::Before ListControl::sort_rule() const {
    return [this](RowOrder::RowNumber left, RowOrder::RowNumber right) {
        const int order = compare_text(cell(left, sort_key_), cell(right, sort_key_));
        return sort_order_ == SortOrder::Ascending ? order < 0 : order > 0;
    };
}

}  // namespace tessarine
