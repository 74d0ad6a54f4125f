// The dialog of the directory, worked by mouse and keys.
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "qt/qt_text.h"
#include "ui/list_view.h"
#include "ui/window_rig.h"

namespace tessarine::fakes {
namespace {

class DirectoryWindow {
  public:
    explicit DirectoryWindow(QWidget& dialog) : dialog_(dialog) {}

    template <class Widget = QWidget>
    Widget& in(const char* name) {
        auto* found = dialog_.findChild<Widget*>(name);
        if (found == nullptr) throw std::runtime_error(std::string("no widget ") + name);
        return *found;
    }

    void press(const char* name) { QTest::mouseClick(&in(name), Qt::LeftButton, {}, QPoint(8, 8)); }
    void type(const char* field, const char* text) { QTest::keyClicks(&in(field), text); }
    QString status() { return in<QLabel>("st1_panel1").text(); }
    int objects() { return in<ListView>("ListView1").model()->rowCount(); }

  private:
    QWidget& dialog_;
};

TEST(DirectoryDialogs, TakeAUserFromADomainToItsHosts) {
    WindowRig window;
    window.rig.directory.containers = {
        {"LDAP:// DC=example, DC=net", {{{"Computers", ""}, {"", "Servers"}}, ""}},
        {"LDAP://OU=Servers, DC=example, DC=net", {{{"srv1", ""}, {"<b>srv2</b>", ""}}, ""}},
        {"LDAP://CN=Typed, DC=example, DC=net", {{{"pc7", ""}}, "The connection is lost"}},
    };
    window.start();
    window.when_open("frmADS", [&](QWidget& dialog) {
        DirectoryWindow directory(dialog);
        directory.type("txtDC1", "example");
        directory.type("txtDC2", "net");
        // Enter in the field does what the button beside it does.
        QTest::keyClick(&directory.in("txtDC2"), Qt::Key_Return);
        auto& names = directory.in<QComboBox>("Combo1");
        EXPECT_EQ(names.count(), 2);
        EXPECT_EQ(names.currentText(), "") << "no name is chosen before the user does";
        names.setCurrentIndex(1);
        EXPECT_EQ(window.console.frmADS->Combo1.text, "Servers");
        directory.press("Command2");
        EXPECT_TRUE(directory.status().startsWith("Please choose"))
            << directory.status().toStdString();
        directory.press("optOU");
        directory.press("Command2");
        EXPECT_EQ(directory.status(), "2 objects found");
        EXPECT_EQ(directory.objects(), 2);
        directory.press("Command3");

        names.clearEditText();
        QTest::keyClicks(names.lineEdit(), "Typed");
        directory.press("optCont");
        EXPECT_FALSE(window.console.frmADS->optOU.value);
        directory.press("Command2");
        EXPECT_EQ(directory.status(), "The connection is lost");
        EXPECT_EQ(directory.objects(), 1);
        directory.press("Command3");
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    window.trigger("enumads");
    const ListControl& hosts = window.console.Form1.ListView1;
    ASSERT_EQ(hosts.count(), 3);
    EXPECT_EQ(hosts.row(2).text(), "<B>SRV2</B>");
    EXPECT_EQ(hosts.row(3).text(), "PC7");
    EXPECT_EQ(window.console.frmADS.if_loaded(), nullptr);
}

TEST(DirectoryDialogs, ShowTheWaitAndCloseBehindIt) {
    WindowRig window;
    window.start();
    window.when_open("frmADS", [&](QWidget& dialog) {
        DirectoryWindow directory(dialog);
        window.rig.directory.while_binding = [&] {
            // What the window system wants comes in while the windows paint.
            QTimer::singleShot(0, &dialog, [&dialog] { dialog.close(); });
            for (int i = 0; i < 10; ++i) {
                window.windows.tick();
                QTest::qSleep(10);
            }
            EXPECT_EQ(directory.status(), "Please wait...");
            EXPECT_NE(QApplication::overrideCursor(), nullptr);
            directory.press("Command1");
            EXPECT_TRUE(dialog.isVisible()) << "its routine still runs";
        };
        directory.press("Command1");
    });
    window.trigger("enumads");
    EXPECT_EQ(window.rig.directory.paths.size(), 1U) << "no second walk meanwhile";
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(DirectoryDialogs, HoldLongAndManyNames) {
    WindowRig window;
    auto& top = window.rig.directory.containers["LDAP:// DC=, DC="];
    for (int i = 0; i < 2500; ++i)
        top.children.push_back({std::string(300, 'n') + std::to_string(i), ""});
    window.start();
    window.when_open("frmADS", [&](QWidget& dialog) {
        DirectoryWindow directory(dialog);
        const int width = dialog.width();
        directory.press("Command1");
        EXPECT_EQ(directory.in<QComboBox>("Combo1").count(), 2500);
        directory.in<QComboBox>("Combo1").setCurrentIndex(7);
        directory.press("optOU");
        directory.press("Command2");
        EXPECT_TRUE(directory.status().startsWith("The directory has no LDAP://OU=nnn"));
        EXPECT_EQ(dialog.width(), width);
        dialog.close();
    });
    window.trigger("enumads");
}

}  // namespace
}  // namespace tessarine::fakes
