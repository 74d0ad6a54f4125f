// A list of rows with columns, as the host list, the event tables and the code lists are.
#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <memory_resource>
#include <string>
#include <string_view>
#include <vector>

#include "core/colours.h"
#include "core/list/row_order.h"
#include "core/list/text_arena.h"

namespace tessarine {

struct ListColumn {
    std::string caption;
    int width = 0;  ///< twips, 1/1440 inch
};

/// One line of a file with up to eight fields that is to become a row: field i ends at `ends[i]`,
/// counted from the start of the line, and the next one begins one character after that.
struct RecordText {
    static constexpr int kFields = 8;
    std::string_view line;
    std::array<std::uint32_t, kFields> ends{};
};

enum class SortOrder : int { Ascending = 0, Descending = 1 };

/// What no view has seen yet: the rows changed, in positions from 1 (`first` above `last` for
/// none), and the row that is to be brought into view (0 for none).
struct ListChanges {
    bool reset = false;
    int first = 1;
    int last = 0;
    int scrolled_to = 0;
};

/// Rows and sub-items are counted from 1, sub-items without the row's own text. A row or a sub-item
/// that is not there raises a RuntimeError.
///
/// Rows are compact: a whole record is kept as one text, with 32 bytes of ends and marks beside it.
/// A row that is changed, or has other cells than a record, gets strings of its own.
class ListControl {
  public:
    class ConstRow;
    class Row;

    explicit ListControl(std::vector<ListColumn> list_columns,
                         std::pmr::memory_resource* memory = std::pmr::get_default_resource());
    ~ListControl();
    ListControl(const ListControl&) = delete;
    ListControl& operator=(const ListControl&) = delete;

    int count() const { return static_cast<int>(order_.size()); }
    ConstRow row(int position) const;
    Row row(int position);
    Row last_row();

    void clear();
    /// Adds a row at the end, or at its sorted place while the list is sorted.
    Row add_row(std::string_view text, int small_icon);
    /// Adds a whole record with its seven sub-items at the end of a list that isn't sorted.
    void add_record_row(const RecordText& record, int small_icon);
    void remove_row(int position);

    /// Sorting is by the text of one column (0 the row's own), without regard to case; equal rows
    /// keep their order. While it is on, added rows take their sorted place.
    bool sorted() const { return sorted_; }
    /// Whether sorting is on and the rows stand in that order. A row whose text in the column is
    /// changed keeps its place.
    bool in_order() const { return sorted_ && in_order_; }
    /// What was sorted stays as it is; sorting again goes by the same column and order.
    void set_sorted(bool sorted);
    void sort_by(int column, SortOrder order);
    int sort_key() const { return sort_key_; }
    SortOrder sort_order() const { return sort_order_; }

    /// How many rows are selected.
    int selected_count() const;
    /// Takes over from the view what the user has selected there: no change, as it shows already.
    void take_selection(int first, int last, bool selected);
    /// The same for the check box of a row.
    void take_check(int position, bool checked);

    /// The row that commands on a single row mean; 0 in an empty list alone. It is the first row
    /// that was added until another is chosen, and after its removal the row that takes its place.
    int selected_item() const { return selected_item_; }
    /// A position without a row changes nothing.
    void set_selected_item(int position);

    /// Has the row brought into view next.
    void scroll_to(int position) { changes_.scrolled_to = position; }
    /// Hands out what has changed since the last call.
    ListChanges take_changes();

    std::vector<ListColumn> columns;
    std::string tool_tip;
    int width = 0;  ///< twips
    bool grid_lines = false;
    bool check_boxes = false;  ///< each row has one

  private:
    struct CompactRow;
    struct OwnRow;

    RowOrder::RowNumber number_at(int position) const;
    std::string_view cell(RowOrder::RowNumber row, int column) const;
    OwnRow& own_row(RowOrder::RowNumber row);
    void sort_rows();
    RowOrder::Before sort_rule() const;
    void mark_changed(int position);
    void text_changed(int position, int column);

    std::pmr::vector<CompactRow> rows_;
    std::vector<std::unique_ptr<OwnRow>> own_rows_;
    RowOrder order_;
    TextArena texts_;
    bool sorted_ = false;
    bool in_order_ = true;  // as far as sorting is on
    int sort_key_ = 0;
    SortOrder sort_order_ = SortOrder::Ascending;
    int selected_item_ = 0;
    ListChanges changes_;
};

/// One row of a list, to be read; it holds as long as the list's rows stay as they are.
class ListControl::ConstRow {
  public:
    std::string_view text() const { return list_->cell(number_, 0); }
    std::string_view sub_item(int index) const;
    int sub_item_count() const;
    int small_icon() const;
    bool selected() const;
    bool checked() const;
    /// Number of the picture in front of a sub-item; 0 for none.
    int report_icon(int sub_item) const;
    /// Column 0 is the row's own text.
    std::uint32_t fore_colour(int column) const;

  protected:
    friend class ListControl;
    ConstRow(const ListControl& list, RowOrder::RowNumber number) : list_(&list), number_(number) {}

    const ListControl* list_;
    RowOrder::RowNumber number_;
};

/// One row of a list, to be read and written.
class ListControl::Row : public ConstRow {
  public:
    void add_sub_item(std::string_view text);
    void set_sub_item(int index, std::string_view text);
    void set_report_icon(int sub_item, int icon);
    void set_fore_colour(int column, std::uint32_t colour);
    void set_selected(bool selected);
    void set_checked(bool checked);

  private:
    friend class ListControl;
    Row(ListControl& list, int position, RowOrder::RowNumber number)
        : ConstRow(list, number), written_(&list), position_(position) {}

    ListControl* written_;
    int position_;
};

}  // namespace tessarine
