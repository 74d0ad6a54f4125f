// The groups of the network: ticking them, and the hosts that come of it.
#include <gmock/gmock.h>

#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include "ui/window_rig.h"

namespace tessarine::fakes {
namespace {

using testing::ElementsAre;

struct NetworkWindow : WindowRig {
    NetworkWindow() {
        rig.browse.network = {{"LAB", {{.name = "LABSRV"}}},
                              {"OFFICE", {{.name = "PC7"}, {.name = "FILESRV"}}},
                              {"<b>markup</b>", {{.name = "<i>x</i>"}}}};
        start();
    }

    /// When the dialog has come up and its groups are listed: it comes up before.
    void when_listed(std::function<void(QWidget&)> act) {
        when_open("Form7", [this, act](QWidget& dialog) { act_once_idle(dialog, act); });
    }

    void act_once_idle(QWidget& dialog, const std::function<void(QWidget&)>& act) {
        if (console.events_running == 1) return act(dialog);
        QTimer::singleShot(10, &dialog, [this, &dialog, act] { act_once_idle(dialog, act); });
    }

    std::string hosts() {
        std::string names;
        const ListControl& list = console.Form1.ListView1;
        for (int row = 1; row <= list.count(); ++row)
            names += std::string(list.row(row).text()) + " ";
        return names;
    }
};

QTableView& groups_in(QWidget& dialog) {
    return *dialog.findChild<QTableView*>("ListView1");
}

bool is_ticked(QWidget& dialog, int row) {
    return groups_in(dialog).model()->index(row, 0).data(Qt::CheckStateRole) == Qt::Checked;
}

void click_box(QWidget& dialog, int row) {
    QTableView& groups = groups_in(dialog);
    const QRect place = groups.visualRect(groups.model()->index(row, 0));
    QTest::mouseClick(groups.viewport(), Qt::LeftButton, {},
                      QPoint(place.left() + 8, place.center().y()));
}

QString status(QWidget& dialog) {
    return dialog.findChild<QLabel*>("st1_panel1")->text();
}

TEST(NetworkWindow, BoxesAreTickedByTheMouseAndByTheSpaceBar) {
    NetworkWindow window;
    window.when_listed([&](QWidget& dialog) {
        QTableView& groups = groups_in(dialog);
        EXPECT_EQ(groups.model()->rowCount(), 3);
        EXPECT_EQ(groups.model()->index(0, 0).data().toString(), "<b>markup</b>");
        EXPECT_EQ(dialog.windowTitle(), "Enumerate Network...");
        click_box(dialog, 2);
        EXPECT_TRUE(is_ticked(dialog, 2));
        EXPECT_FALSE(is_ticked(dialog, 1));
        // A click beside the box marks the row alone, and the space bar acts on that row.
        click_row(groups, 2);
        EXPECT_TRUE(is_ticked(dialog, 2));
        QTest::keyClick(&groups, Qt::Key_Space);
        EXPECT_FALSE(is_ticked(dialog, 2));
        QTest::keyClick(&groups, Qt::Key_Space);
        QTest::keyClick(&groups, Qt::Key_Up);
        QTest::keyClick(&groups, Qt::Key_Space);
        EXPECT_TRUE(is_ticked(dialog, 1));
        QTest::mouseClick(dialog.findChild<QPushButton*>("Command1"), Qt::LeftButton);
        EXPECT_EQ(status(dialog), "Enumeration complete..");
        EXPECT_TRUE(dialog.isVisible());
        dialog.close();
    });
    window.find<QAction>("Toolbar1_1").trigger();
    EXPECT_EQ(window.hosts(), "LABSRV PC7 FILESRV ");
    EXPECT_FALSE(window.console.Form7.loaded());
}

TEST(NetworkWindow, EachOpeningListsTheGroupsAfresh) {
    NetworkWindow window;
    for (const int rows : {3, 1}) {
        window.when_listed([&, rows](QWidget& dialog) {
            EXPECT_EQ(groups_in(dialog).model()->rowCount(), rows);
            EXPECT_FALSE(is_ticked(dialog, 0));
            click_box(dialog, 0);
            QTest::keyClick(&groups_in(dialog), Qt::Key_Escape);
        });
        window.trigger("enumLan");
        window.rig.browse.network = {{"LAB", {{.name = "LABSRV"}}}};
    }
}

TEST(NetworkWindow, ASilentNetworkIsToldInAMessage) {
    NetworkWindow window;
    window.rig.browse.network.clear();
    window.when_listed([&](QWidget& dialog) {
        QTest::mouseClick(dialog.findChild<QPushButton*>("Command1"), Qt::LeftButton);
        EXPECT_EQ(status(dialog), "list empty...");
        dialog.close();
    });
    window.trigger("enumLan");
    ASSERT_EQ(window.rig.dialogs.messages.size(), 1u);
    EXPECT_EQ(window.rig.dialogs.messages.front().text,
              "Error: Nobody has answered. Please retry..");
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// The program ends while the dialog is open: its rows go before its window does.
TEST(NetworkWindow, TheProgramCanEndBehindIt) {
    NetworkWindow window;
    window.when_listed([&](QWidget&) { run_event(window.console, end_console); });
    window.trigger("enumLan");
    EXPECT_TRUE(window.rig.program.ended);
}

}  // namespace
}  // namespace tessarine::fakes
