#include "tour/user.h"

#include <QAction>
#include <QApplication>
#include <QCursor>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTabBar>
#include <QTableView>
#include <QTest>

#include "tour/failure.h"

namespace tessarine::tour {

void User::missing(const QString& name) const {
    fail("there is no " + name + " in the window " + window_.windowTitle());
}

QMenu& User::open_menu(const QString& name) const {
    auto& menu = find<QMenu>(name);
    QMenuBar* bar = window_.findChild<QMenuBar*>();
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(menu.menuAction()).center());
    pause();
    check(menu.isVisible(), "the menu " + name + " doesn't open");
    return menu;
}

void User::close_menu() const {
    while (QWidget* open = QApplication::activePopupWidget()) {
        QTest::keyClick(open, Qt::Key_Escape);
        pause();
    }
}

void User::choose(const QString& menu, const QString& entry) const {
    pick(open_menu(menu), entry);
    // The pointer leaves what lies below the menu, which would look pressed.
    QCursor::setPos(window_.mapToGlobal(window_.rect().bottomRight()));
    pause();
}

void User::pick(QWidget& open, const QString& entry) {
    auto& menu = dynamic_cast<QMenu&>(open);
    for (QAction* action : menu.actions()) {
        if (action->objectName() != entry) continue;
        check(action->isEnabled(), "the menu entry " + entry + " is disabled");
        const QPoint place = menu.actionGeometry(action).center();
        QTest::mouseMove(&menu, place);
        QTest::mouseClick(&menu, Qt::LeftButton, {}, place);
        return;
    }
    fail("there is no menu entry " + entry);
}

void User::click(const QString& name) const {
    auto& widget = find(name);
    check(widget.isEnabled() && widget.isVisible(), name + " can't be clicked");
    // A box is clicked where its mark is, not in the empty space after its caption.
    const QPoint place(qobject_cast<QPushButton*>(&widget) != nullptr ? widget.width() / 2 : 10,
                       widget.height() / 2);
    QTest::mouseClick(&widget, Qt::LeftButton, {}, place);
    pause();
}

void User::click_tab(const QString& name, int tab) const {
    auto& bar = find<QTabBar>(name);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, bar.tabRect(tab).center());
    pause();
    check(bar.currentIndex() == tab, "the tab isn't selected");
}

void User::type(const QString& name, const QString& text) const {
    auto& field = find<QLineEdit>(name);
    QTest::mouseClick(&field, Qt::LeftButton);
    QTest::keyClick(&field, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(&field, text);
}

QPoint User::place_of_row(const QTableView& table, int row) const {
    check(row < table.model()->rowCount(), "there is no row " + QString::number(row + 1));
    const QModelIndex index = table.model()->index(row, 0);
    const_cast<QTableView&>(table).scrollTo(index);
    return table.visualRect(index).center();
}

void User::click_row(const QString& name, int row) const {
    auto& table = find<QTableView>(name);
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {}, place_of_row(table, row));
    pause();
}

void User::right_click_row(const QString& name, int row) const {
    auto& table = find<QTableView>(name);
    QTest::mouseClick(table.viewport(), Qt::RightButton, {}, place_of_row(table, row));
    pause();
}

void User::double_click_row(const QString& name, int row) const {
    auto& table = find<QTableView>(name);
    QTest::mouseDClick(table.viewport(), Qt::LeftButton, {}, place_of_row(table, row));
    pause();
}

void User::click_head(const QString& name, int column) const {
    QHeaderView* head = find<QTableView>(name).horizontalHeader();
    const QPoint place(head->sectionViewportPosition(column) + 10, head->height() / 2);
    QTest::mouseClick(head->viewport(), Qt::LeftButton, {}, place);
    pause();
}

QString User::cell(const QString& table, int row, int column) const {
    const QAbstractItemModel* model = find<QTableView>(table).model();
    return model->index(row, column).data().toString();
}

int User::rows(const QString& table) const {
    return find<QTableView>(table).model()->rowCount();
}

void User::pause(int milliseconds) {
    QTest::qWait(milliseconds);
}

}  // namespace tessarine::tour
