// What a user does by the keyboard alone.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTest>

#include "ui/window_rig.h"

namespace tessarine::fakes {
namespace {

class Keyboard : public testing::Test {
  protected:
    void SetUp() override {
        window.rig.files.put("/lists/hosts.txt", "pc1\r\npc2\r\n");
        window.rig.files.put("/app/Data/PC1_system.log",
                             "error|1/2/2026|1:02:03 PM|disk|11|N/A|PC1|A bad block\r\n"
                             "warning|1/2/2026|1:02:04 PM|w|36|N/A|PC1|Late~line\r\n"
                             "error|1/2/2026|1:02:05 PM|disk|7|N/A|PC1|Worse\r\n");
        window.rig.files.put("/app/alertpatterns.txt", "5\r\n");
        window.start();
        activate();
    }

    // A menu that has closed may still count as the active window.
    void activate() {
        QWidget& main = window.windows.main_window();
        main.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&main));
    }

    static void press(int key, Qt::KeyboardModifiers keys = {}) {
        QWidget* popup = QApplication::activePopupWidget();
        QTest::keyClick(popup != nullptr ? popup : QApplication::focusWidget(), Qt::Key(key), keys);
    }
    static void type(const QString& text) { QTest::keyClicks(QApplication::focusWidget(), text); }
    static std::string focus() {
        const QWidget* widget = QApplication::focusWidget();
        return widget == nullptr ? "" : widget->objectName().toStdString();
    }
    void tab_to(const char* name) {
        for (int i = 0; i < 60 && focus() != name; ++i) press(Qt::Key_Tab);
        ASSERT_EQ(focus(), name);
    }

    WindowRig window;
};

TEST_F(Keyboard, AloneLoadsViewsSearchesAndHighlights) {
    press(Qt::Key_F10);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    EXPECT_EQ(QApplication::activePopupWidget()->objectName(), "file");
    press(Qt::Key_Escape);
    press(Qt::Key_Escape);
    activate();
    window.rig.dialogs.choose_file_next("/lists/hosts.txt");
    press(Qt::Key_O, Qt::ControlModifier);
    tab_to("ListView1");
    press(Qt::Key_Down);
    press(Qt::Key_Home);
    // "View Graph" comes after "View Event Logs", and then the letter begins anew.
    window.when_open("MyMenu", [](QWidget& menu) {
        for (int i = 0; i < 3; ++i) QTest::keyClick(&menu, Qt::Key_V);
        QTest::keyClick(&menu, Qt::Key_Return);
    });
    // What the window system makes of the menu key.
    QContextMenuEvent menu_key(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(QApplication::focusWidget(), &menu_key);
    activate();
    EXPECT_EQ(window.find<QLineEdit>("txtSelectedHost").text(), "Host: PC1");

    tab_to("SystemList");
    press(Qt::Key_End);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(),
              "error\t1/2/2026\t1:02:05 PM\tdisk\t7\tN/A\tPC1\tWorse");
    press(Qt::Key_Home);
    EXPECT_EQ(window.find<QTableView>("SystemList").currentIndex().row(), 0);

    press(Qt::Key_Backtab, Qt::ShiftModifier);
    tab_to("ListView1");
    press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(focus(), "TxtSearch");
    tab_to("Check1");
    press(Qt::Key_Space);
    tab_to("TxtSearch");
    type("WORSE");
    press(Qt::Key_Return);
    EXPECT_EQ(window.find<QTableView>("SystemList").model()->rowCount(), 1);

    press(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(focus(), "TxtAlert");
    type("7");
    press(Qt::Key_Return);
    EXPECT_EQ(focus(), "TxtAlert");
    EXPECT_EQ(window.rig.files.bytes("/app/alertpatterns.txt"), "5\r\n7\r\n\r\n");
    tab_to("AlertList");
    press(Qt::Key_Home);
    press(Qt::Key_Delete);
    EXPECT_EQ(window.rig.files.bytes("/app/alertpatterns.txt"), "7\r\n\r\n\r\n");
    press(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(window.console.Form1.host_tab, 2);
    window.find("SystemList").setFocus();
    press(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(window.console.Form1.main_tab, 4);
}

TEST_F(Keyboard, KeepsItsPlaceInAMessageWhenTheWindowIsRefreshed) {
    WindowRig::add_record(window.console.Form1.SystemList,
                          {"error", "d", "t", "s", "1", "u", "c", "a\xA0word~\rnext"}, 4);
    window.console.Form1.SystemList.set_selected_item(1);
    window.windows.refresh();
    window.when_open("Form2", [&](QWidget& dialog) {
        auto* message = dialog.findChild<QPlainTextEdit*>("txtDesc");
        message->selectAll();
        window.windows.refresh();
        EXPECT_TRUE(message->textCursor().hasSelection());
        dialog.close();
    });
    QTest::keyClick(&window.find("SystemList"), Qt::Key_Return);
}

TEST_F(Keyboard, SeesTheHourglassOfTheWindowWhileALogIsReadAgain) {
    QWidget& main = window.windows.main_window();
    run_event(window.console, [&](Console& console) {
        console.Form1.mouse_pointer = kPointerHourglass;
        QTest::qSleep(40);
        console.Form1.st1.set_text(3, "Loading record ... ");
        EXPECT_EQ(main.cursor().shape(), Qt::WaitCursor);
        console.Form1.mouse_pointer = kPointerDefault;
    });
    EXPECT_EQ(main.cursor().shape(), Qt::ArrowCursor);
}

}  // namespace
}  // namespace tessarine::fakes
