// What a user does in the window, from the click to what is seen.
#include <gmock/gmock.h>

#include <QCalendarWidget>
#include <QChartView>
#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPieSeries>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTableView>
#include <QTemporaryDir>
#include <QTest>

#include "app/console_program.h"
#include "ui/window_rig.h"

namespace tessarine::fakes {
namespace {

using testing::HasSubstr;

constexpr const char* kRecords =
    "error|1/2/2026|1:02:03 PM|disk|11|N/A|PC1|A bad block\r\n"
    "information|1/2/2026|1:02:04 PM|Tcpip|4201|N/A|PC1|Ready\r\n";

QString cell(WindowRig& window, const char* table, int row, int column) {
    return window.find<QTableView>(table).model()->index(row, column).data().toString();
}

int rows(WindowRig& window, const char* table) {
    return window.find<QTableView>(table).model()->rowCount();
}

QString panel(WindowRig& window, int number) {
    return window.find<QLabel>(qPrintable(QStringLiteral("st1_panel%1").arg(number))).text();
}

void pick(QWidget& menu, const char* entry) {
    auto* action = menu.findChild<QAction*>(entry);
    ASSERT_TRUE(action != nullptr && action->isEnabled());
    const QPoint place = dynamic_cast<QMenu&>(menu).actionGeometry(action).center();
    QTest::mouseMove(&menu, place);
    QTest::mouseClick(&menu, Qt::LeftButton, {}, place);
}

TEST(Journey, AHostListIsLoadedAndOneHostsLogsAreViewed) {
    WindowRig window;
    window.rig.files.put("/lists/hosts.txt", "pc1\r\npc2\r\n");
    window.rig.files.put("/app/Data/PC1_system.log", kRecords);
    window.rig.files.put("/app/alertpatterns.txt", "11\r\n\r\n");
    window.start();
    EXPECT_EQ(window.windows.main_window().windowTitle(), "Tessarine 1.3.0");

    window.rig.dialogs.choose_file_next("/lists/hosts.txt");
    window.trigger("loadfrmlist");
    EXPECT_EQ(rows(window, "ListView1"), 2);
    EXPECT_EQ(cell(window, "ListView1", 0, 0), "PC1");
    EXPECT_EQ(panel(window, 4), "2 hosts");

    window.trigger("highlightpatt");
    EXPECT_TRUE(window.find<QAction>("highlightpatt").isChecked());
    EXPECT_TRUE(window.find<QAction>("Toolbar1_10").isChecked());

    window.when_open("MyMenu", [](QWidget& menu) { pick(menu, "vieweventlogs"); });
    click_row(window.find("ListView1"), 0, Qt::RightButton);
    EXPECT_EQ(window.find<QLineEdit>("txtSelectedHost").text(), "Host: PC1");
    EXPECT_EQ(rows(window, "SystemList"), 2);
    EXPECT_EQ(cell(window, "SystemList", 0, 4), "11");
    const auto* model = window.find<QTableView>("SystemList").model();
    EXPECT_TRUE(model->index(0, 7).data(Qt::ForegroundRole).isValid());
    EXPECT_FALSE(model->index(1, 7).data(Qt::ForegroundRole).isValid());
    EXPECT_EQ(panel(window, 3), "Total: 2 events    Ignored:0    Highlighted:1");
    EXPECT_EQ(window.find<QTabBar>("TabStrip2").tabData(0), 2);
}

// A click on the head of a column, counted from 0.
void click_head(WindowRig& window, const char* table, int column) {
    QHeaderView* head = window.find<QTableView>(table).horizontalHeader();
    const QPoint place(head->sectionViewportPosition(column) + 10, head->height() / 2);
    QTest::mouseClick(head->viewport(), Qt::LeftButton, {}, place);
}

TEST(Journey, AnEventIsFoundReadAndHighlighted) {
    WindowRig window;
    std::string records;
    for (const char* record :
         {"error|1/2/2026|1:00:00 PM|disk|11", "warning|1/2/2026|1:01:00 PM|w|36",
          "error|1/2/2026|1:02:00 PM|disk|7", "error|1/2/2026|1:03:00 PM|a|9",
          "error|1/2/2026|1:04:00 PM|scm|7034"})
        records += std::string(record) + "|N/A|PC1|first~second\r\n";
    window.rig.files.put("/app/Data/PC1_system.log", records);
    window.console.Form1.ListView1.add_row("PC1", 1).add_sub_item("-");
    window.start();
    window.when_open("MyMenu", [](QWidget& menu) { pick(menu, "vieweventlogs"); });
    click_row(window.find("ListView1"), 0, Qt::RightButton);
    EXPECT_EQ(rows(window, "SystemList"), 5);
    // On free ground the menu is for the first row, from which the arrows go on.
    QTableView& table = window.find<QTableView>("SystemList");
    window.when_open("popmeup2", [](QWidget& menu) { menu.close(); });
    QTest::mouseClick(table.viewport(), Qt::RightButton, {},
                      table.viewport()->rect().bottomLeft() + QPoint(5, -5));
    QTest::keyClick(&table, Qt::Key_Down);
    EXPECT_EQ(table.currentIndex().row(), 1);
    QTest::mouseClick(&window.find("SysWarnings"), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(rows(window, "SystemList"), 4);

    click_head(window, "SystemList", 4);
    EXPECT_EQ(cell(window, "SystemList", 0, 4), "11");
    EXPECT_EQ(cell(window, "SystemList", 3, 4), "9");
    window.when_open("Form2", [&](QWidget& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "System Log: ");
        EXPECT_EQ(dialog.findChild<QLabel*>("lblEventID")->text(), "7");
        EXPECT_EQ(dialog.findChild<QPlainTextEdit*>("txtDesc")->toPlainText(), "first\nsecond");
        auto* up = dialog.findChild<QPushButton*>("CmdUp");
        QTest::mouseClick(up, Qt::LeftButton);
        EXPECT_EQ(window.find<QTableView>("SystemList").currentIndex().row(), 0);
        dialog.findChild<QPushButton*>("CmdDown")->click();
        dialog.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        QTest::keyClick(&dialog, Qt::Key_Down, Qt::AltModifier);
        const auto* code = dialog.findChild<QLabel*>("lblEventID");
        EXPECT_TRUE(QTest::qWaitFor([code] { return code->text() == "7034"; }));
        dialog.findChild<QPushButton*>("cmdClipboard")->click();
        EXPECT_THAT(window.rig.clipboard.text, HasSubstr("Event Code:\t7034\r\n"));
        dialog.findChild<QPushButton*>("Command1")->click();
    });
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {},
                       table.visualRect(table.model()->index(1, 0)).center());
    EXPECT_FALSE(window.console.Form2.loaded());
    EXPECT_EQ(table.currentIndex().row(), 2);

    window.when_open("popmeup2", [](QWidget& menu) { pick(menu, "addtohighlightlist"); });
    click_row(table, 2, Qt::RightButton);
    window.trigger("highlightpatt");
    window.when_open("MyMenu", [](QWidget& menu) { pick(menu, "vieweventlogs"); });
    click_row(window.find("ListView1"), 0, Qt::RightButton);
    EXPECT_EQ(cell(window, "SystemList", 3, 4), "7034");
    EXPECT_TRUE(table.model()->index(3, 0).data(Qt::ForegroundRole).isValid());
    EXPECT_FALSE(table.model()->index(0, 0).data(Qt::ForegroundRole).isValid());
}

// One paragraph of a megabyte would keep the window busy for minutes.
TEST(Journey, AnEndlessMessageIsShownInParagraphs) {
    WindowRig window;
    const std::string words = std::string(5'000, 'x') + " " + std::string(4'000, 'y') + " end";
    WindowRig::add_record(window.console.Form1.SystemList,
                          {"error", "d", "t", "s", "1", "u", "c", words + "~last"}, 4);
    window.start();
    window.when_open("Form2", [&](QWidget& dialog) {
        const QString shown = dialog.findChild<QPlainTextEdit*>("txtDesc")->toPlainText();
        EXPECT_EQ(shown.toStdString(), std::string(4'096, 'x') + "\n" + std::string(904, 'x') +
                                           " \n" + std::string(4'000, 'y') + " end\nlast");
        dialog.findChild<QPushButton*>("Command1")->click();
    });
    QTest::keyClick(&window.find("SystemList"), Qt::Key_Return);
}

TEST(Journey, CodesAreAddedPickedAndRemoved) {
    WindowRig window;
    window.start();
    window.find<QTabBar>("TabStrip1").setCurrentIndex(2);
    ASSERT_TRUE(window.find("AlertList").isVisible());
    auto& field = window.find<QLineEdit>("TxtAlert");
    for (const char* code : {"4625", "7034"}) {
        QTest::keyClicks(&field, code);
        QTest::mouseClick(&window.find("Command1"), Qt::LeftButton);
    }
    EXPECT_EQ(rows(window, "AlertList"), 2);
    EXPECT_EQ(window.rig.files.bytes("/app/alertpatterns.txt"), "4625\r\n\r\n7034\r\n\r\n");
    click_row(window.find("AlertList"), 0);
    EXPECT_EQ(field.text(), "4625");
    QTest::mouseClick(&window.find("Command6"), Qt::LeftButton);
    EXPECT_EQ(rows(window, "AlertList"), 1);
    EXPECT_EQ(cell(window, "AlertList", 0, 0), "7034");
}

TEST(Journey, HostsAreAddedByButtonAndByEnter) {
    WindowRig window;
    window.start();
    window.when_open("Form6", [&](QWidget& dialog) {
        auto* field = dialog.findChild<QLineEdit*>("AddHost");
        QTest::keyClicks(field, "pc1");
        QTest::mouseClick(dialog.findChild<QPushButton*>("Command1"), Qt::LeftButton);
        EXPECT_EQ(field->text(), "");
        QTest::keyClicks(field, "pc2");
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_EQ(rows(window, "ListView1"), 2);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    window.trigger("addhostmanually");
    EXPECT_EQ(cell(window, "ListView1", 1, 0), "PC2");
    EXPECT_FALSE(window.console.Form6.loaded());
}

TEST(Journey, TheCustomAuditTakesItsDayFromMouseOrKeys) {
    WindowRig window;
    window.rig.clock.moment = {{2026, 3, 9}, {12, 0, 0}};
    window.start();
    window.when_open("Form4", [&](QWidget& dialog) {
        auto* sentence = dialog.findChild<QLabel*>("Label1");
        auto* calendar = dialog.findChild<QCalendarWidget*>("MonthView1");
        auto* days = calendar->findChild<QWidget*>("qt_calendar_calendarview");
        EXPECT_EQ(sentence->text(), "Perform audit from: 3/9/2026 onwards");
        days->setFocus();
        QTest::keyClick(days, Qt::Key_Left);
        EXPECT_TRUE(days->hasFocus()) << "walking must not lose the calendar";
        QTest::keyClick(days, Qt::Key_Return);
        EXPECT_EQ(sentence->text(), "Perform audit from: 3/8/2026 onwards");
        days->setFocus();
        QTest::keyClick(days, Qt::Key_Left);
        dialog.findChild<QWidget*>("ChkSys")->setFocus();
        EXPECT_EQ(sentence->text(), "Perform audit from: 3/7/2026 onwards");
        dialog.findChild<QCheckBox*>("chkSpecificDate")->click();
        EXPECT_EQ(sentence->text(), "Perform audit for: 3/7/2026");
        for (const char* box : {"ChkSys", "ChkApp", "ChkSec"})
            dialog.findChild<QCheckBox*>(box)->click();
        dialog.findChild<QPushButton*>("Command1")->click();
        EXPECT_EQ(window.rig.dialogs.messages.back().text, "select atleast one log to audit");
        EXPECT_TRUE(dialog.isVisible());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    window.trigger("runcustomforallhosts");
    EXPECT_FALSE(window.console.Form4.loaded());
}

TEST(Journey, AFullAuditTestsTheHostForThreeSecondsThatNobodyCutsShort) {
    WindowRig window;
    window.console.Form1.ListView1.add_row("PC1", 1).add_sub_item("-");
    window.start();
    QElapsedTimer clock;
    clock.start();
    window.when_open("ConCheck", [](QWidget& dialog) {
        EXPECT_EQ(dialog.findChild<QLabel*>("lblHostName")->text(), "PC1");
        EXPECT_EQ(dialog.findChild<QLabel*>("lblReturn")->text(), "Trying");
        QTest::keyClick(&dialog, Qt::Key_Escape);
        dialog.close();
        EXPECT_TRUE(dialog.isVisible());
    });
    window.trigger("runFullauditAllhost");
    EXPECT_GE(clock.elapsed(), 2990);
    EXPECT_LT(clock.elapsed(), 6000);
    const auto* model = window.find<QTableView>("ListView1").model();
    EXPECT_EQ(model->index(0, 1).data(Qt::AccessibleDescriptionRole), "audit failed");
}

// Whether the chart of that name in `window` is drawn as a pie.
bool is_pie(const QWidget& window, const char* chart) {
    const auto* drawing = window.findChild<QWidget*>(chart)->findChild<QChartView*>()->chart();
    return qobject_cast<QPieSeries*>(drawing->series().front()) != nullptr;
}

TEST(Journey, AnalysedLogsAreDrawnAsBarsAndAsAPie) {
    WindowRig window;
    window.rig.files.put("/app/Data/PC1_system.log", kRecords);
    window.start();
    QWidget& main = window.windows.main_window();
    window.find<QTabBar>("TabStrip1").setCurrentIndex(1);
    window.find<QCheckBox>("Check4").click();
    window.find<QPushButton>("Command3").click();
    EXPECT_EQ(window.find("sysPie").accessibleDescription(),
              "Error: 1, Information: 1, Warning: 0");
    EXPECT_FALSE(is_pie(main, "sysPie"));
    auto& pie = window.find<QRadioButton>("Option4");
    QTest::mouseClick(&pie, Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_TRUE(is_pie(main, "sysPie"));
    EXPECT_FALSE(is_pie(main, "appPie"));
    EXPECT_EQ(pie.accessibleDescription(), "System Events");
    main.activateWindow();
    pie.setFocus();
    QTest::keyClick(&pie, Qt::Key_Left);
    EXPECT_TRUE(window.find<QRadioButton>("Option5").isChecked());
    EXPECT_FALSE(is_pie(main, "sysPie"));

    window.console.Form1.Option4.value = true;
    window.console.Form1.Option5.value = false;
    window.windows.refresh();
    EXPECT_TRUE(pie.isChecked());
    EXPECT_FALSE(is_pie(main, "sysPie")) << "a refresh is no click";
}

TEST(Journey, AHostsGraphShowsALogAsBarsOrAsAPie) {
    WindowRig window;
    window.rig.files.put("/app/Data/PC1_system.log", kRecords);
    window.rig.files.put("/app/Data/PC1_security.log",
                         "audit failure|d|t|Security|4625|u|c|refused\r\n");
    window.console.Form1.ListView1.add_row("PC1", 1).add_sub_item("-");
    window.start();
    window.when_open("MyMenu", [](QWidget& menu) { pick(menu, "vieweventlogs"); });
    click_row(window.find("ListView1"), 0, Qt::RightButton);
    window.when_open("MyMenu", [](QWidget& menu) { pick(menu, "graphicalview"); });
    window.when_open("Form5", [](QWidget& dialog) {
        const auto* chart = dialog.findChild<QWidget*>("pie");
        EXPECT_EQ(dialog.windowTitle(), "Grahpical Analysis - Host: PC1");
        EXPECT_EQ(chart->accessibleDescription(), "Errors: 1, Informations: 1, Alerts: 0");
        dialog.findChild<QRadioButton*>("Option4")->click();
        dialog.findChild<QRadioButton*>("Option3")->click();
        EXPECT_EQ(chart->accessibleDescription(), "Audit Failures: 1, Audit Success: 0");
        EXPECT_TRUE(is_pie(dialog, "pie"));
        QStringList chosen;
        for (const auto* option : dialog.findChildren<QRadioButton*>())
            if (option->isChecked()) chosen += option->objectName();
        EXPECT_EQ(chosen.join(' '), "Option3 Option4");
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    click_row(window.find("ListView1"), 0, Qt::RightButton);
    EXPECT_FALSE(window.console.Form5.loaded());
}

TEST(Journey, TheShownHostsFieldPassesTheFocusOn) {
    WindowRig window;
    window.start();
    window.windows.main_window().activateWindow();
    window.find("txtSelectedHost").setFocus();
    EXPECT_TRUE(window.find("ListView1").hasFocus());
}

TEST(Journey, TabsBringTheirPagesToTheFront) {
    WindowRig window;
    window.start();
    window.find<QTabBar>("TabStrip2").setCurrentIndex(2);
    EXPECT_TRUE(window.find("SecFilter").isVisible());
    EXPECT_FALSE(window.find("SystemList").isVisible());
    EXPECT_EQ(window.console.Form1.lblselectedTab.caption, " Security Log  ");
    window.find<QTabBar>("TabStrip1").setCurrentIndex(1);
    EXPECT_TRUE(window.find("TxtSearch").isVisible());
}

TEST(Journey, TheWholeProgramStartsOnAnEmptyFolderAndEndsByItsMenu) {
    const QTemporaryDir home;
    qputenv("XDG_DATA_HOME", QFile::encodeName(home.path()));
    ConsoleProgram program(FileChooser::OfQt);
    program.start();
    auto* exit = program.windows().main_window().findChild<QAction*>("exit");
    QTimer::singleShot(0, exit, &QAction::trigger);
    EXPECT_EQ(program.run(), 0);
    EXPECT_FALSE(program.windows().main_window().isVisible());
    EXPECT_EQ(QDir(home.filePath("tessarine")).entryList({"*.txt"}).join(' '),
              "alertpatterns.txt ignorelist.txt");
    EXPECT_EQ(program.run(), 0) << "a program that has ended doesn't run again";
    qunsetenv("XDG_DATA_HOME");
}

TEST(Journey, TheCloseBoxEndsTheProgram) {
    WindowRig window;
    window.start();
    window.windows.main_window().close();
    EXPECT_TRUE(window.rig.program.ended);
    EXPECT_FALSE(window.windows.main_window().isVisible());
}

TEST(Journey, AboutSaysWhatProgramThisIs) {
    WindowRig window;
    window.start();
    window.when_open("AboutForm", [](QWidget& dialog) {
        const auto* text = dialog.findChild<QPlainTextEdit*>("Text1");
        EXPECT_THAT(text->toPlainText().toStdString(), HasSubstr("Version:\t1.3.0"));
        dialog.findChild<QPushButton*>("close")->click();
    });
    window.trigger("About");
}

}  // namespace
}  // namespace tessarine::fakes
