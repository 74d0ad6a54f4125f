// The step through the groups of the network.
#include <QLabel>
#include <QTableView>
#include <QTest>
#include <QTimer>
#include <cstdio>

#include "core/console_state.h"
#include "platform/browse_list.h"
#include "tour/failure.h"
#include "tour/tour.h"

namespace tessarine::tour {
namespace {

void tick(const User& in_dialog, int row) {
    auto& groups = in_dialog.find<QTableView>("ListView1");
    const QRect place = groups.visualRect(groups.model()->index(row, 0));
    QTest::mouseClick(groups.viewport(), Qt::LeftButton, {},
                      QPoint(place.left() + 8, place.center().y()));
    User::pause();
    check(groups.model()->index(row, 0).data(Qt::CheckStateRole) == Qt::Checked,
          "the group isn't ticked");
}

}  // namespace

// The hosts that it brings make room for the list after it.
void Tour::find_hosts() {
    if (program_.console().platform.browse_list.groups().error != 0) {
        std::puts("  no picture of the network's groups: nobody answers here");
        return;
    }
    watch_.expect("Form7", [this](QWidget& dialog) { enumerate_in(dialog); });
    user_.choose("hosts", "enumLan");
    check(user_.rows("ListView1") > 0, "the network has brought no hosts");
    album_.take("network-hosts");
}

// The dialog comes up before its groups are listed.
void Tour::enumerate_in(QWidget& dialog) {
    if (program_.console().events_running > 1) {
        QTimer::singleShot(50, &dialog, [this, &dialog] { enumerate_in(dialog); });
        return;
    }
    const User in_dialog(dialog);
    const int groups = in_dialog.rows("ListView1");
    check(groups > 0, "no group is listed");
    for (int row = 0; row < groups; ++row) tick(in_dialog, row);
    in_dialog.click("Command1");
    check(in_dialog.find<QLabel>("st1_panel1").text() == "Enumeration complete..",
          "the enumeration isn't complete");
    album_.take("enumerate-network");
    dialog.close();
}

}  // namespace tessarine::tour
