// The tables: what they show while a list changes, and what they write into it.
#include <gmock/gmock.h>

#include <QAbstractItemModelTester>
#include <QContextMenuEvent>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QHelpEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QStyledItemDelegate>
#include <QTabBar>
#include <QTest>
#include <QToolTip>

#include "ui/list_view.h"
#include "ui/window_rig.h"

namespace tessarine::fakes {
namespace {

std::vector<ListColumn> three_columns() {
    return {{"A"}, {"B"}, {"Message"}};
}

QVariant shown(const ListView& view, int row, int column, int role = Qt::DisplayRole) {
    return view.model()->index(row, column).data(role);
}

TEST(ListView, ShowsTheRowsOfTheLastRefreshWhateverARoutineDoesToThem) {
    ListControl list(three_columns());
    ListView view(list, ListView::Selects::ManyRows);
    QAbstractItemModelTester tester(view.model(),
                                    QAbstractItemModelTester::FailureReportingMode::Fatal);
    for (const char* name : {"PC1", "PC2", "PC3"}) list.add_row(name, 1);
    EXPECT_EQ(view.model()->rowCount(), 0);
    view.refresh();
    EXPECT_EQ(view.model()->rowCount(), 3);

    list.clear();
    list.add_row("PC4", 1);
    EXPECT_EQ(view.model()->rowCount(), 3);
    EXPECT_FALSE(shown(view, 2, 0).isValid());
    view.refresh();
    EXPECT_EQ(view.model()->rowCount(), 1);

    list.add_row("PC5", 1).add_sub_item("-");
    list.row(1).add_sub_item("new");
    QSignalSpy changes(view.model(), &QAbstractItemModel::dataChanged);
    view.refresh();
    EXPECT_EQ(view.model()->rowCount(), 2);
    EXPECT_EQ(changes.size(), 1);
    EXPECT_EQ(shown(view, 0, 1), "new");
}

TEST(ListView, ShowsShortLongAndColouredRows) {
    ListControl list(three_columns());
    ListView view(list, ListView::Selects::OneRow);
    list.add_row("only a type", 4);
    ListControl::Row full = list.add_row(
        "\xDC"
        "berwachungsfehler",
        5);
    full.add_sub_item("a\tb");
    full.add_sub_item(std::string(30'000, 'x'));
    full.set_fore_colour(0, kRed);
    full.set_report_icon(1, 8);
    view.refresh();

    EXPECT_FALSE(shown(view, 0, 2).isValid());
    EXPECT_FALSE(shown(view, 0, 0, Qt::ForegroundRole).isValid());
    EXPECT_EQ(shown(view, 1, 0), QString::fromUtf8("Überwachungsfehler"));
    EXPECT_EQ(shown(view, 1, 1), "a b");
    EXPECT_LT(shown(view, 1, 2).toString().size(), 1000);
    EXPECT_TRUE(shown(view, 1, 0, Qt::ForegroundRole).isValid());
    EXPECT_EQ(shown(view, 1, 1, Qt::AccessibleDescriptionRole), "audit failed");
    EXPECT_TRUE(shown(view, 1, 1, Qt::DecorationRole).isValid());
    EXPECT_FALSE(shown(view, 0, 1, Qt::DecorationRole).isValid());
}

TEST(ListView, TheRedOfAHighlightedRowIsReadableOnLightAndOnDark) {
    ListControl list(three_columns());
    ListView view(list, ListView::Selects::OneRow);
    list.add_row("Error", 4).set_fore_colour(0, kRed);
    view.refresh();
    const QPalette before = QApplication::palette();
    for (const QColor& ground : {QColor(Qt::white), QColor(0x20, 0x20, 0x20)}) {
        QPalette palette = before;
        palette.setColor(QPalette::Base, ground);
        QApplication::setPalette(palette);
        const auto red = shown(view, 0, 0, Qt::ForegroundRole).value<QColor>();
        EXPECT_GT(std::abs(red.lightness() - ground.lightness()), 90);
        EXPECT_GT(red.red(), red.green() + 80);
        EXPECT_EQ(red == QColor(Qt::red), ground == Qt::white);
    }
    QApplication::setPalette(before);
}

TEST(ListView, ALongTextLooksAsIfAllOfItHadBeenMeasured) {
    ListControl list(three_columns());
    ListView view(list, ListView::Selects::OneRow);
    view.resize(900, 200);
    for (const char* letters : {"l", "The driver found an error. ", "W"}) {
        std::string text;
        while (text.size() < 580) text += letters;
        list.add_row(text, 4).add_sub_item(text);
        list.last_row().add_sub_item(text);
    }
    view.refresh();
    const QImage cut = view.grab().toImage();
    QStyledItemDelegate uncut;
    view.setItemDelegate(&uncut);
    EXPECT_EQ(cut, view.grab().toImage());
}

TEST(ListView, WritesWhatTheUserSelectsAndShowsWhatTheConsoleSelects) {
    ListControl list({{"HostName"}, {"Audit"}});
    ListView view(list, ListView::Selects::ManyRows);
    view.resize(300, 300);
    view.show();
    for (const char* name : {"PC1", "PC2", "PC3"}) list.add_row(name, 1).add_sub_item("-");
    view.refresh();

    click_row(view, 0);
    click_row(view, 2, Qt::LeftButton, Qt::ControlModifier);
    EXPECT_TRUE(list.row(1).selected() && !list.row(2).selected() && list.row(3).selected());
    EXPECT_EQ(list.selected_item(), 3);
    QSignalSpy changes(view.model(), &QAbstractItemModel::dataChanged);
    view.refresh();
    EXPECT_TRUE(changes.isEmpty()) << "the view shows already what was selected in it";

    // A right click on one of several selected rows keeps them; on another row it selects that.
    click_row(view, 0, Qt::RightButton);
    EXPECT_TRUE(list.row(1).selected() && list.row(3).selected());
    click_row(view, 1, Qt::RightButton);
    EXPECT_TRUE(!list.row(1).selected() && list.row(2).selected() && !list.row(3).selected());
    EXPECT_EQ(list.selected_item(), 2);

    list.row(1).set_selected(true);
    list.scroll_to(3);
    view.refresh();
    EXPECT_EQ(view.selectionModel()->selectedRows().size(), 2);
    EXPECT_TRUE(list.row(2).selected()) << "the view must not write back what it shows";

    list.remove_row(1);
    view.refresh();
    EXPECT_EQ(view.selectionModel()->selectedRows().size(), 1);
    EXPECT_EQ(list.selected_item(), 1);
}

TEST(ListView, TellsButtonsAndPickedRows) {
    ListControl list({{"HostName"}});
    ListView view(list, ListView::Selects::OneRow);
    view.resize(300, 300);
    view.show();
    list.add_row("PC1", 1);
    list.add_row("PC2", 1);
    view.refresh();
    QSignalSpy pressed(&view, &ListView::button_pressed);
    QSignalSpy released(&view, &ListView::button_released);
    QSignalSpy picked(&view, &ListView::row_picked);
    const auto next = [](QSignalSpy& spy) { return spy.takeFirst().at(0).value<MouseButton>(); };

    EXPECT_TRUE(list.row(1).selected()) << "the first row, before any click";
    QTest::keyClick(&view, Qt::Key_Space);
    EXPECT_EQ(picked.size(), 1);
    EXPECT_EQ(next(released), MouseButton::Left);
    click_row(view, 0);
    EXPECT_EQ(next(pressed), MouseButton::Left);
    EXPECT_EQ(picked.size(), 2);
    click_row(view, 1, Qt::RightButton);
    EXPECT_EQ(next(pressed), MouseButton::Right);
    EXPECT_EQ(next(released), MouseButton::Left);
    EXPECT_EQ(next(released), MouseButton::Right);
    QTest::keyClick(&view, Qt::Key_Up);
    EXPECT_EQ(picked.size(), 3);
    EXPECT_EQ(next(released), MouseButton::Left);

    // The menu key stands for the right button, pressed and released.
    QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(1, 1), QPoint(1, 1));
    QApplication::sendEvent(&view, &key);
    EXPECT_EQ(next(pressed), MouseButton::Right);
    EXPECT_EQ(next(released), MouseButton::Right);
}

TEST(ListView, OpensARowByDoubleClickAndByEnter) {
    ListControl list({{"Event"}});
    ListView view(list, ListView::Selects::OneRow);
    view.resize(300, 300);
    view.show();
    QSignalSpy opened(&view, &ListView::row_opened);
    QTest::keyClick(&view, Qt::Key_Return);
    list.add_row("4625", 1);
    view.refresh();
    const QPoint row = view.visualRect(view.model()->index(0, 0)).center();
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, QPoint(10, 280));
    QTest::mouseDClick(view.viewport(), Qt::RightButton, {}, row);
    EXPECT_EQ(opened.size(), 0);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, row);
    EXPECT_EQ(opened.size(), 1);
    QTest::keyClick(&view, Qt::Key_Return);
    EXPECT_EQ(opened.size(), 2);
}

TEST(ListView, EventTablesShareTheirWidthEquallyButForTheMessage) {
    ListControl list({{"Type"}, {"Date"}, {"Source"}, {"Message"}});
    ListView view(list, ListView::Selects::OneRow, ListView::Widths::EventTable);
    view.resize(1600, 300);
    view.show();
    EXPECT_EQ(view.columnWidth(0), view.columnWidth(1));
    EXPECT_EQ(view.columnWidth(0), view.columnWidth(2));
    EXPECT_GT(view.columnWidth(3), view.columnWidth(0));
    EXPECT_FALSE(view.horizontalScrollBar()->isVisible());
}

// Moves the right edge of a column by the mouse.
void drag_edge(const QTableView& view, int column, int by) {
    const QHeaderView& head = *view.horizontalHeader();
    const QPoint edge(head.sectionViewportPosition(column) + head.sectionSize(column) - 1,
                      head.height() / 2);
    QTest::mouseMove(head.viewport(), edge);
    QTest::mousePress(head.viewport(), Qt::LeftButton, {}, edge);
    for (const int step : {by / 2, by}) QTest::mouseMove(head.viewport(), edge + QPoint(step, 0));
    QTest::mouseRelease(head.viewport(), Qt::LeftButton, {}, edge + QPoint(by, 0));
}

std::vector<int> widths(const QTableView& view) {
    std::vector<int> all;
    for (int column = 0; column < view.model()->columnCount(); ++column)
        all.push_back(view.columnWidth(column));
    return all;
}

// Neither the scroll bars that come with wider columns and with rows, nor a load, nor another page
// on top changes a width that was set by hand.
TEST(ListView, WidthsSetByHandLastUntilTheWindowIsResized) {
    WindowRig window;
    MainForm& form = window.console.Form1;
    const struct {
        const char* name;
        ListControl& list;
        int page;
    } tables[] = {{"ApplicationList", form.ApplicationList, 1},
                  {"ListView2", form.ListView2, 3},
                  {"ListView1", form.ListView1, 3}};
    window.start();
    QWidget& main_window = window.windows.main_window();
    auto& pages = window.find<QTabBar>("TabStrip2");
    for (const auto& [name, list, page] : tables) {
        SCOPED_TRACE(name);
        pages.setCurrentIndex(page);
        auto& view = window.find<ListView>(name);
        ASSERT_TRUE(view.isVisible());
        const std::vector<int> shared = widths(view);
        drag_edge(view, 0, 90);
        const std::vector<int> by_hand = widths(view);
        EXPECT_EQ(by_hand[0], shared[0] + 90);

        for (int row = 0; row < 200; ++row) list.add_row("PC", 1).add_sub_item("-");
        view.refresh();
        pages.setCurrentIndex(2);
        pages.setCurrentIndex(page);
        EXPECT_TRUE(QTest::qWaitFor([&] { return view.verticalScrollBar()->isVisible(); }));
        list.clear();
        list.add_row("PC", 1);
        view.refresh();
        EXPECT_EQ(widths(view), by_hand);

        main_window.resize(main_window.size() + QSize(0, 20));
        EXPECT_EQ(widths(view), shared);
    }
}

TEST(ListView, EventTablesKeepTheWidthOfTheMessageWhenTheWindowIsResized) {
    WindowRig window;
    window.start();
    QWidget& main_window = window.windows.main_window();
    main_window.resize(1600, 700);
    auto& view = window.find<QTableView>("SystemList");
    std::vector<int> expected = widths(view);
    drag_edge(view, 7, 84);
    expected[7] += 84;
    EXPECT_EQ(widths(view), expected);
    EXPECT_TRUE(QTest::qWaitFor([&] { return view.horizontalScrollBar()->isVisible(); }));
    main_window.resize(1614, 700);
    const int message = expected[7];
    expected.assign(7, expected[0] - 10);
    expected.push_back(message);
    EXPECT_EQ(widths(view), expected);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !view.horizontalScrollBar()->isVisible(); }));
}

TEST(ListView, ATextThatIsCutHasATipWithAllOfIt) {
    ListControl list({{"HostName"}, {"Audit"}});
    list.tool_tip = "Right click";
    ListView view(list, ListView::Selects::OneRow);
    view.resize(200, 200);
    view.show();
    list.add_row("PC", 1).add_sub_item("-");
    list.add_row("<b>a host whose name is far too long</b>", 1).add_sub_item("-");
    view.refresh();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
    const auto tip_over = [&view](int row) {
        const QPoint place = view.visualRect(view.model()->index(row, 0)).center();
        QHelpEvent event(QEvent::ToolTip, place, view.viewport()->mapToGlobal(place));
        QApplication::sendEvent(view.viewport(), &event);
        return QToolTip::text();
    };
    EXPECT_EQ(tip_over(0), "Right click");
    EXPECT_EQ(tip_over(1), "<p>&lt;b&gt;a host whose name is far too long&lt;/b&gt;</p>");
    QToolTip::hideText();
}

TEST(ListView, TheSortArrowShowsOnlyOverRowsInThatOrder) {
    ListControl list(three_columns());
    ListView view(list, ListView::Selects::OneRow);
    for (const char* code : {"2", "1"}) list.add_row("x", 4).add_sub_item(code);
    const auto arrow_shows = [&view] {
        view.refresh();
        return view.horizontalHeader()->isSortIndicatorShown();
    };
    EXPECT_FALSE(arrow_shows());
    list.sort_by(1, SortOrder::Ascending);
    EXPECT_TRUE(arrow_shows());
    list.row(1).set_sub_item(1, "3");
    EXPECT_FALSE(arrow_shows());
}

TEST(ListView, TablesOfTheAnalysisLeaveTheSourceTheMostRoom) {
    ListControl list({{"Event Code"}, {"Instances"}, {"Source"}});
    list.add_row("1234567890", 4).add_sub_item("2147483647");
    ListView view(list, ListView::Selects::OneRow, ListView::Widths::AnalysisTable);
    view.refresh();
    view.resize(600, 300);
    view.show();
    EXPECT_GT(view.columnWidth(2), view.columnWidth(0) + view.columnWidth(1));
    EXPECT_GT(view.columnWidth(1), view.fontMetrics().horizontalAdvance("2147483647"));
    EXPECT_FALSE(view.horizontalScrollBar()->isVisible());
    view.resize(150, 300);
    EXPECT_EQ(view.columnWidth(0), view.columnWidth(1)) << "no room to spare";
    EXPECT_FALSE(view.horizontalScrollBar()->isVisible());
}

TEST(ListView, AMillionRowsAreShownAndScrolledAtOnce) {
    ListControl list(
        {{"Type"}, {"Date"}, {"Time"}, {"Source"}, {"Event"}, {"User"}, {"Computer"}, {"Message"}});
    const std::string line = "error|1/2/2026|1:02:03 PM|disk|11|N/A|PC1|The driver found an error";
    RecordText record{.line = line};
    std::size_t at = 0;
    for (std::uint32_t& end : record.ends) {
        end = static_cast<std::uint32_t>(std::min(line.find('|', at), line.size()));
        at = end + 1;
    }
    constexpr int kRows = 1'000'000;
    for (int i = 0; i < kRows; ++i) list.add_record_row(record, 4);
    ListView view(list, ListView::Selects::OneRow, ListView::Widths::EventTable);
    view.resize(1000, 700);
    view.show();

    QElapsedTimer clock;
    clock.start();
    view.refresh();
    view.grab();
    for (int page = 0; page < 20; ++page) {
        view.verticalScrollBar()->setValue(kRows / 20 * page);
        view.grab();
    }
    EXPECT_EQ(view.model()->rowCount(), kRows);
    EXPECT_EQ(shown(view, kRows - 1, 7), "The driver found an error");
    // Tens of milliseconds as a rule; what this guards against takes minutes.
    EXPECT_LT(clock.elapsed(), 10'000);
}

}  // namespace
}  // namespace tessarine::fakes
