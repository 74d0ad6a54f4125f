// A day at a console whose machine speaks German.
#include <gmock/gmock.h>

#include <QAction>
#include <QLocale>
#include <QMenu>
#include <QTableView>
#include <QTest>

#include "audit/connection_check.h"
#include "fakes/environment.h"
#include "ui/window_rig.h"

namespace tessarine::fakes {
namespace {

void pick(QWidget& menu, const char* entry) {
    auto* action = menu.findChild<QAction*>(entry);
    ASSERT_TRUE(action != nullptr && action->isEnabled());
    QTest::mouseClick(&menu, Qt::LeftButton, {},
                      dynamic_cast<QMenu&>(menu).actionGeometry(action).center());
}

// What C's own functions and Qt take for the locale, for the time of a test.
class GermanMachine {
  public:
    GermanMachine() { QLocale::setDefault(QLocale("de_DE")); }
    ~GermanMachine() { QLocale::setDefault(QLocale::c()); }
    GermanMachine(const GermanMachine&) = delete;
    GermanMachine& operator=(const GermanMachine&) = delete;

  private:
    Environment variable_{"LC_ALL", "de_DE.UTF-8"};
};

TEST(LocaleJourney, AGermanMachineAuditsViewsAndExports) {
    if (!has_locale("de_DE.UTF-8")) GTEST_SKIP() << "de_DE.UTF-8 is not installed";
    const GermanMachine machine;
    WindowRig window;
    window.console.regional = RegionalText::of_this_machine();
    window.rig.network.hosts["PC1"].records = {
        {.Type = "Fehler", .TimeGenerated = "20041103180705.000000+060"}};
    window.console.Form1.ListView1.add_row("PC1", 1).add_sub_item("-");
    window.start();

    // The day is handed about as month, day and year, whatever the machine's form.
    window.when_open("Form4", [&](QWidget& dialog) {
        EXPECT_EQ(window.console.Form4->Label1.caption, "Perform audit from: 11/30/2004 onwards");
        dialog.findChild<QWidget*>("Command1")->setFocus();
        QTest::keyClick(dialog.findChild<QWidget*>("Command1"), Qt::Key_Space);
    });
    // The host answers, and its three seconds are over at once.
    window.when_open("ConCheck", [&](QWidget&) {
        window.console.ConCheck->lblReturn.caption = "connected";
        run_event(window.console, end_connection_attempt);
    });
    window.trigger("runcustomforallhosts");
    EXPECT_EQ(window.console.Form1.AuditStat.text, "ok");
    EXPECT_EQ(window.rig.files.bytes("/app/Data/PC1_system.log"),
              "Fehler|03.11.2004|18:07:05|Tcpip|4201|N/A|PC1|Ready.\r\n");
    EXPECT_EQ(window.rig.files.bytes("/app/Logs/30-11-2004.log"),
              "30.11.2004 23:59:59 PC1 Audit ok\r\n");

    window.when_open("MyMenu", [](QWidget& menu) { pick(menu, "vieweventlogs"); });
    click_row(window.find("ListView1"), 0, Qt::RightButton);
    const auto* table = window.find<QTableView>("SystemList").model();
    ASSERT_EQ(table->rowCount(), 1);
    EXPECT_EQ(table->index(0, 1).data().toString(), "03.11.2004");
    EXPECT_EQ(table->index(0, 2).data().toString(), "18:07:05");

    window.trigger("Toolbar1_15");
    EXPECT_THAT(window.rig.files.bytes("/app/tempop.html"),
                testing::HasSubstr("Exported at 30.11.2004 23:59:59</h3>"));
}

}  // namespace
}  // namespace tessarine::fakes
