// The step through the directory.
#include <QComboBox>
#include <QLabel>
#include <QTest>
#include <iostream>

#include "tour/failure.h"
#include "tour/tour.h"

namespace tessarine::tour {

// The hosts of the sample network's directory, which not every machine has.
void Tour::find_hosts_in_the_directory() {
    const int before = user_.rows("ListView1");
    int found = 0;
    watch_.expect("frmADS", [this, &found](QWidget& dialog) {
        const User in_dialog(dialog);
        in_dialog.type("txtDC1", "sample");
        in_dialog.type("txtDC2", "example");
        in_dialog.click("Command1");
        auto& names = in_dialog.find<QComboBox>("Combo1");
        if (names.count() == 0)
            std::cout << "left out: the directory: "
                      << in_dialog.find<QLabel>("st1_panel1").text().toStdString() << std::endl;
        if (const int unit = names.findText("Servers"); unit >= 0) {
            names.setCurrentIndex(unit);
            in_dialog.click("optOU");
            in_dialog.click("Command2");
            found = in_dialog.rows("ListView1");
            check(found > 0, "the unit has no hosts");
            in_dialog.click("Command3");
        }
        album_.take("directory");
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    user_.choose("hosts", "enumads");
    check(user_.rows("ListView1") == before + found, "the hosts found have not been added");
}

}  // namespace tessarine::tour
