// The settings dialog, worked by mouse and keys.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QClipboard>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QToolButton>

#include "core/run_event.h"
#include "core/scramble.h"
#include "core/settings_store.h"
#include "ui/window_rig.h"

namespace tessarine::fakes {
namespace {

template <class Widget = QWidget>
Widget& in(QWidget& dialog, const char* name) {
    auto* found = dialog.findChild<Widget*>(name);
    if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
    return *found;
}

void open_page(QWidget& dialog, int page) {
    auto& bar = in<QTabBar>(dialog, "TabStrip1");
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(page).center());
}

void press(QWidget& dialog, const char* button) {
    ASSERT_TRUE(in(dialog, button).isVisible()) << button;
    QTest::mouseClick(&in(dialog, button), Qt::LeftButton, {}, QPoint(8, 8));
}

QString status(QWidget& dialog) {
    return in<QLabel>(dialog, "st1_panel1").text();
}

// Whether any widget of the dialog holds the text, as its own or for a screen reader.
bool is_in_a_widget(QWidget& dialog, const QString& text) {
    for (QWidget* widget : dialog.findChildren<QWidget*>()) {
        if (const auto* field = qobject_cast<QLineEdit*>(widget); field && field->text() == text)
            return true;
        QAccessibleInterface* reader = QAccessible::queryAccessibleInterface(widget);
        for (const auto part : {QAccessible::Name, QAccessible::Value, QAccessible::Description})
            if (reader != nullptr && reader->text(part).contains(text)) return true;
    }
    return false;
}

TEST(Settings, APageIsSavedByItsButtonAndTheRestDroppedOnClosing) {
    WindowRig window;
    window.start();
    window.when_open("Form3", [&](QWidget& dialog) {
        auto& folder = in<QLineEdit>(dialog, "txtLogPath");
        EXPECT_EQ(folder.text(), "/app\\");
        window.rig.dialogs.choose_file_next("/collected");
        press(dialog, "cmdLogPathBrowse");
        EXPECT_EQ(folder.text(), "/collected/");
        press(dialog, "optMove");
        // Enter in a field presses no button.
        folder.setFocus();
        QTest::keyClick(&folder, Qt::Key_Return);
        EXPECT_EQ(status(dialog), "");
        press(dialog, "cmdAuditSave");
        EXPECT_EQ(status(dialog), "Audit Settings Saved....");
        QTest::keyClick(&dialog, Qt::Key_Tab, Qt::ControlModifier);
        EXPECT_EQ(dialog.focusWidget(), &in(dialog, "Check1"));
        QTest::keyClick(&dialog, Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
        EXPECT_EQ(dialog.focusWidget(), &folder);
        open_page(dialog, 2);
        EXPECT_FALSE(folder.isVisible());
        QTest::keyClicks(&in(dialog, "txtHosts"), "/unsaved.txt");
        EXPECT_EQ(window.console.Form3->txtHosts.text, "/unsaved.txt") << "in force, saved or not";
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    window.trigger("settings");
    EXPECT_FALSE(window.console.Form3.if_loaded() != nullptr);
    window.when_open("Form3", [&](QWidget& dialog) {
        EXPECT_EQ(in<QLineEdit>(dialog, "txtLogPath").text(), "/collected/");
        EXPECT_EQ(in<QLineEdit>(dialog, "txtHosts").text(), "");
        dialog.close();
    });
    window.trigger("Toolbar1_13");
}

TEST(Settings, ArrowsStepByMouseAndByKeys) {
    WindowRig window;
    window.start();
    window.when_open("Form3", [&](QWidget& dialog) {
        open_page(dialog, 2);
        auto& hour = in<QLineEdit>(dialog, "txtHour");
        const auto arrows = in(dialog, "UpDown1").findChildren<QToolButton*>();
        QTest::mouseClick(arrows.at(0), Qt::LeftButton);
        EXPECT_EQ(hour.text(), "01");
        QTest::mouseClick(arrows.at(1), Qt::LeftButton);
        QTest::mouseClick(arrows.at(1), Qt::LeftButton);
        EXPECT_EQ(hour.text(), "24");
        QTest::keyClick(&hour, Qt::Key_Up);
        EXPECT_EQ(hour.text(), "00");
        auto& days = in(dialog, "txtretlog");
        for (int i = 0; i < 25; ++i) QTest::keyClick(&days, Qt::Key_Up);
        EXPECT_EQ(window.console.Form3->txtretlog.text, "20");
        press(dialog, "chkEnableschedule");
        press(dialog, "Command7");
        EXPECT_TRUE(window.console.Form1.tmrAutoAudit.enabled);
        dialog.close();
    });
    window.trigger("settings");
}

TEST(Settings, TheScheduleTicksWhileItIsEnabled) {
    WindowRig window;
    window.rig.settings.set("enscheaudit", "true");
    window.rig.settings.set("autoauditat", "07:30");
    window.rig.clock.moment = {{2024, 2, 20}, {7, 29, 0}};
    window.console.Form1.tmrAutoAudit.interval = 20;
    window.start();
    const auto& panel = window.find<QLabel>("st1_panel5");
    EXPECT_TRUE(QTest::qWaitFor([&] { return panel.text() == "07:29 -  AutoAudit @: 07:30"; }));
    window.when_open("Form3", [&](QWidget& dialog) {
        open_page(dialog, 2);
        // What stands in the dialog is in force at once.
        QTest::keyClick(&in(dialog, "txtMin"), Qt::Key_Up);
        EXPECT_TRUE(QTest::qWaitFor([&] { return panel.text() == "07:29 -  AutoAudit @: 07:31"; }));
        press(dialog, "chkEnableschedule");
        press(dialog, "Command7");
        EXPECT_EQ(panel.text(), "");
        QTest::qWait(60);
        EXPECT_EQ(panel.text(), "");
        dialog.close();
    });
    window.trigger("settings");
}

TEST(Settings, NoWidgetHasThePassword) {
    WindowRig window;
    window.rig.settings.set("altpass", Scramble("stored-one", kScrambleKey));
    window.start();
    window.when_open("Form3", [&](QWidget& dialog) {
        open_page(dialog, 1);
        auto& field = in<QLineEdit>(dialog, "TxtPassword");
        const SecretText& password = window.console.Form3->TxtPassword.text;
        EXPECT_EQ(field.text().size(), 10);
        EXPECT_FALSE(is_in_a_widget(dialog, "stored-one"));
        field.setFocus();
        QTest::keyClick(&field, Qt::Key_End);
        QTest::keyClick(&field, Qt::Key_Backspace);
        QTest::keyClicks(&field, "e!");
        QTest::keyClick(&field, Qt::Key_Home);
        QTest::keyClick(&field, Qt::Key_Delete);
        EXPECT_EQ(password.text(), "tored-one!");
        QTest::keyClick(&field, Qt::Key_Right, Qt::ShiftModifier);
        QGuiApplication::clipboard()->setText(QStringLiteral("p\u00E4|\nsecond line"));
        QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(password.text(), "p\xE4|ored-one!");
        QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
        for (const Qt::Key key : {Qt::Key_C, Qt::Key_X, Qt::Key_Z})
            QTest::keyClick(&field, key, Qt::ControlModifier);
        EXPECT_EQ(QGuiApplication::clipboard()->text().size(), 15) << "as it was";
        // The code page lacks this letter: nothing else may take its place.
        QGuiApplication::clipboard()->setText(QStringLiteral("\u0416"));
        QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
        QTest::keyClicks(&field, "new|word");
        EXPECT_EQ(password.text(), "new|word");
        EXPECT_EQ(field.text(), QString(8, QChar(0x25CF)));
        press(dialog, "Command2");
        EXPECT_FALSE(is_in_a_widget(dialog, "new|word"));
        dialog.close();
    });
    window.trigger("settings");
    EXPECT_EQ(window.console.Form3->TxtPassword.text.text(), "new|word");
    for (const std::string& saved : window.rig.settings.written)
        EXPECT_EQ(saved.find("new|word"), std::string::npos);
}

TEST(Settings, TheListOfTheTestShowsItsLastLine) {
    WindowRig window;
    window.start();
    window.when_open("Form3", [&](QWidget& dialog) {
        open_page(dialog, 3);
        auto& items = window.console.Form3->lstStatus.items;
        for (int i = 1; i <= 100; ++i) items.push_back("line " + std::to_string(i));
        window.windows.refresh();
        auto& list = in<QListWidget>(dialog, "lstStatus");
        ASSERT_EQ(list.count(), 100);
        EXPECT_TRUE(list.viewport()->rect().intersects(list.visualItemRect(list.item(99))));
        EXPECT_TRUE(list.selectedItems().isEmpty());
        items = {"anew"};
        window.windows.refresh();
        EXPECT_EQ(list.item(0)->text(), "anew");
        dialog.close();
    });
    window.trigger("settings");
}

// The mail server takes half a second, in which the user tries this and that.
TEST(Settings, ATestMailShowsItsLinesAsTheyComeAndClosesTheDialogAfterwards) {
    WindowRig window;
    window.start();
    window.rig.mail.status_lines = {"> QUIT"};
    window.when_open("Form3", [&](QWidget& dialog) {
        open_page(dialog, 3);
        auto& list = in<QListWidget>(dialog, "lstStatus");
        window.rig.mail.during_send = [&] {
            window.console.Form3->lstStatus.items.push_back("< 220 ready");
            QTimer::singleShot(100, &dialog, [&] {
                EXPECT_EQ(list.count(), 1);
                press(dialog, "Command1");
                dialog.close();
                EXPECT_TRUE(dialog.isVisible());
            });
            QElapsedTimer clock;
            for (clock.start(); !clock.hasExpired(300);) window.windows.tick();
        };
        press(dialog, "Command1");
        EXPECT_FALSE(dialog.isVisible());
    });
    window.trigger("settings");
    EXPECT_EQ(window.rig.mail.sent.size(), 1U) << "no second one meanwhile";
}

// Nobody could go on otherwise.
TEST(Settings, AMessageIsAnsweredAlsoWhileTheWindowsAreOutOfReach) {
    WindowRig window;
    window.start();
    bool answered = false;
    run_event(window.console, [&](Console&) {
        window.windows.tick();
        QTimer::singleShot(100, &window.windows.main_window(), [] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
            if (box->isVisible()) box->done(-1);
        });
        QMessageBox box(QMessageBox::Critical, "Tessarine", "Sorry", QMessageBox::Ok);
        answered = box.exec() == QMessageBox::Ok;
    });
    EXPECT_TRUE(answered);
}

}  // namespace
}  // namespace tessarine::fakes
