#include "core/list/list_control.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "core/runtime_error.h"
#include "core/text.h"
#include "store/event_record.h"

namespace tessarine {
namespace {

ListControl event_table() {
    return ListControl(std::vector<ListColumn>(8));
}

void add_record(ListControl& list, const std::string& line) {
    list.add_record_row(EventRecord(line).text(), 3);
}

std::string cells(const ListControl::ConstRow& row) {
    std::string text(row.text());
    for (int i = 1; i <= row.sub_item_count(); ++i) text.append("|").append(row.sub_item(i));
    return text;
}

std::vector<std::string> texts(const ListControl& list) {
    std::vector<std::string> all;
    for (int row = 1; row <= list.count(); ++row) all.emplace_back(list.row(row).text());
    return all;
}

TEST(ListControl, KeepsRecordsWhateverTheirLength) {
    ListControl list = event_table();
    std::vector<std::string> lines = {
        "a|b|c|d|e|f|g|h", "|||||||",
        "a|b|c|d|e|f|g|" + std::string(100'000, 'm'),               // a long message
        "a|b|c|d|e|f|g|" + std::string(std::size_t{9} << 20, 'm'),  // beyond any block
    };
    // No compact rows, whichever field is long.
    for (std::size_t field = 0; field < 7; ++field)
        lines.push_back(std::string("a|b|c|d|e|f|g|h").insert(2 * field, 70'000, 'x'));
    lines.emplace_back("z|b|c|d|e|f|g|h");
    for (int filling = 0; filling < 2; ++filling) {
        list.clear();
        for (const std::string& line : lines) add_record(list, line);
        ASSERT_EQ(list.count(), lines.size());
        for (int row = 1; row <= list.count(); ++row)
            EXPECT_TRUE(cells(list.row(row)) == lines[static_cast<std::size_t>(row - 1)])
                << "row " << row;
    }
}

TEST(ListControl, ChangedRowsKeepTheirOtherCells) {
    ListControl list = event_table();
    add_record(list, "error|b|c|d|e|f|g|h");
    add_record(list, "warning|b|c|d|e|f|g|h");
    ListControl::Row row = list.row(1);
    row.set_fore_colour(0, kRed);
    row.set_fore_colour(7, kRed);
    row.set_selected(true);
    row.add_sub_item("extra");
    row.set_sub_item(2, "C");
    row.set_report_icon(8, 7);

    EXPECT_EQ(cells(list.row(1)), "error|b|C|d|e|f|g|h|extra");
    EXPECT_EQ(list.row(1).fore_colour(0), kRed);
    EXPECT_EQ(list.row(1).fore_colour(6), kDefaultColour);
    EXPECT_EQ(list.row(1).fore_colour(7), kRed);
    EXPECT_EQ(list.row(1).report_icon(8), 7);
    EXPECT_EQ(list.row(1).small_icon(), 3);
    EXPECT_TRUE(list.row(1).selected());
    EXPECT_EQ(cells(list.row(2)), "warning|b|c|d|e|f|g|h");
    EXPECT_FALSE(list.row(2).selected());
}

TEST(ListControl, RaisesForWhatIsNotThere) {
    ListControl list = event_table();
    EXPECT_THROW(list.last_row(), RuntimeError);
    list.add_row("short", 2).add_sub_item("1");
    EXPECT_THROW(list.row(0), RuntimeError);
    EXPECT_THROW(list.row(2), RuntimeError);
    EXPECT_THROW(list.row(1).sub_item(2), RuntimeError);
    EXPECT_THROW(list.row(1).sub_item(0), RuntimeError);
    EXPECT_THROW(list.row(1).set_fore_colour(2, kRed), RuntimeError);
    EXPECT_THROW(list.row(1).set_report_icon(2, 7), RuntimeError);
    EXPECT_THROW(list.remove_row(2), RuntimeError);
}

TEST(ListControl, HasASelectedItemThatStaysOnItsRow) {
    ListControl list = event_table();
    const auto selected = [&list] {
        const int position = list.selected_item();
        return position == 0 ? "none" : std::string(list.row(position).text());
    };
    EXPECT_EQ(selected(), "none");
    for (const char* name : {"b", "c", "d", "e"}) list.add_row(name, 1);
    EXPECT_EQ(selected(), "b");
    list.set_selected_item(3);
    list.set_selected_item(0);
    list.set_selected_item(5);
    list.remove_row(1);
    EXPECT_EQ(selected(), "d");
    list.sort_by(0, SortOrder::Ascending);
    for (const char* name : {"cc", "D", "f", "a"}) list.add_row(name, 1);
    EXPECT_EQ(selected(), "d");
    list.sort_by(0, SortOrder::Descending);
    list.add_row("da", 1);  // at the selected row's place
    EXPECT_EQ(texts(list), (std::vector<std::string>{"f", "e", "da", "d", "D", "cc", "c", "a"}));
    EXPECT_EQ(selected(), "d");
    list.remove_row(4);
    EXPECT_EQ(selected(), "D") << "the row that takes the place";
    list.set_selected_item(7);
    list.remove_row(7);
    EXPECT_EQ(selected(), "c") << "the last one, as there is none after it";
    list.clear();
    EXPECT_EQ(selected(), "none");
    add_record(list, "first|b|c|d|e|f|g|h");
    add_record(list, "second|b|c|d|e|f|g|h");
    EXPECT_EQ(selected(), "first");
}

TEST(ListControl, TellsWhatHasChanged) {
    ListControl list = event_table();
    list.add_row("a", 1);
    list.add_row("b", 1);
    ListChanges changes = list.take_changes();
    EXPECT_EQ(changes.first, 1);
    EXPECT_EQ(changes.last, 2);
    changes = list.take_changes();
    EXPECT_FALSE(changes.reset);
    EXPECT_GT(changes.first, changes.last);
    list.row(2).set_selected(true);
    list.scroll_to(2);
    changes = list.take_changes();
    EXPECT_EQ(changes.first, 2);
    EXPECT_EQ(changes.last, 2);
    EXPECT_EQ(changes.scrolled_to, 2);
    EXPECT_EQ(list.take_changes().scrolled_to, 0);
    list.remove_row(1);
    EXPECT_TRUE(list.take_changes().reset);
    list.clear();
    EXPECT_TRUE(list.take_changes().reset);
}

// Rows that are added while sorting is on, and removed in between, against a plain sorted vector.
TEST(ListControl, SortedInsertionAgreesWithAPlainList) {
    for (const SortOrder order : {SortOrder::Ascending, SortOrder::Descending}) {
        std::mt19937 random(42);
        ListControl list = event_table();
        list.sort_by(0, order);
        std::vector<std::string> expected;
        const auto before = [&](const std::string& left, const std::string& right) {
            const int compared = compare_text(left, right);
            return order == SortOrder::Ascending ? compared < 0 : compared > 0;
        };
        for (int i = 0; i < 5'000; ++i) {
            std::string text = std::to_string(random() % 700);
            text.insert(0, random() % 2 == 0 ? "x" : "X");
            const auto place = std::upper_bound(expected.begin(), expected.end(), text, before);
            const auto position = place - expected.begin() + 1;
            expected.insert(place, text);
            list.add_row(text, 1);
            ASSERT_EQ(list.row(static_cast<int>(position)).text(), text);
            if (random() % 5 != 0) continue;
            const auto victim = static_cast<std::ptrdiff_t>(random() % expected.size());
            expected.erase(expected.begin() + victim);
            list.remove_row(static_cast<int>(victim) + 1);
        }
        EXPECT_EQ(texts(list), expected);
    }
}

TEST(ListControl, SortsByAnyColumnAndKeepsTheOrderOfEqualRows) {
    ListControl list = event_table();
    for (const char* line : {"1|b|||||||", "2|A|||||||", "3|a|||||||", "4|B|||||||"})
        add_record(list, line);
    list.set_selected_item(4);
    list.sort_by(1, SortOrder::Ascending);
    EXPECT_EQ(texts(list), (std::vector<std::string>{"2", "3", "1", "4"}));
    list.sort_by(1, SortOrder::Descending);
    EXPECT_EQ(texts(list), (std::vector<std::string>{"1", "4", "2", "3"}));
    EXPECT_EQ(list.row(list.selected_item()).text(), "4");
    list.set_sorted(false);
    list.add_row("5", 1);
    EXPECT_EQ(list.last_row().text(), "5");
}

TEST(ListControl, KnowsWhetherItsRowsStandInTheOrder) {
    ListControl list = event_table();
    for (const char* line : {"1|b|||||||", "2|a|||||||", "3|c|||||||"}) add_record(list, line);
    EXPECT_FALSE(list.in_order());
    const auto in_order_after = [&list](int row, int column, const char* text) {
        list.sort_by(1, SortOrder::Ascending);
        EXPECT_TRUE(list.in_order());
        list.row(row).set_sub_item(column, text);
        return list.in_order();
    };
    EXPECT_TRUE(in_order_after(2, 2, "z")) << "another column";
    EXPECT_TRUE(in_order_after(2, 1, "A"));
    EXPECT_FALSE(in_order_after(2, 1, "d"));
    EXPECT_FALSE(in_order_after(2, 1, "0"));
    list.sort_by(1, SortOrder::Ascending);
    list.add_row("4", 1);
    EXPECT_TRUE(list.in_order());
    list.row(1).add_sub_item("z");
    EXPECT_FALSE(list.in_order());
    list.clear();
    EXPECT_TRUE(list.in_order());
    list.set_sorted(false);
    EXPECT_FALSE(list.in_order());
}

// Texts that part before, at and after the eighth character, NULs among them, against
// compare_text.
TEST(ListControl, SortsAsTheComparisonSays) {
    std::mt19937 random(7);
    std::vector<std::string> expected;
    ListControl list = event_table();
    for (int i = 0; i < 3'000; ++i) {
        std::string text;
        for (std::size_t length = random() % 20; text.size() < length;)
            text +=
                std::string_view("aAbB\0 \xC4\xE4\xFF", 9)[random() % 4 == 0 ? random() % 9 : 0];
        expected.push_back(text);
        list.add_row(text, 1);
    }
    list.sort_by(0, SortOrder::Ascending);
    std::stable_sort(expected.begin(), expected.end(),
                     [](const auto& a, const auto& b) { return compare_text(a, b) < 0; });
    EXPECT_EQ(texts(list), expected);
}

}  // namespace
}  // namespace tessarine
