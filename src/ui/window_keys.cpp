#include "ui/window_keys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>
#include <algorithm>

#include "ui/list_view.h"

namespace tessarine {
namespace {

void add_key(QWidget& window, const QKeySequence& keys, const std::function<void()>& act) {
    QObject::connect(new QShortcut(keys, &window), &QShortcut::activated, &window, act);
}

// The first widget of the column's page that Tab would stop at.
void focus_page(QWidget& column) {
    for (QWidget* next = column.nextInFocusChain(); next != &column;
         next = next->nextInFocusChain()) {
        const bool stops = (next->focusPolicy() & Qt::TabFocus) != 0 && next->isEnabled();
        if (!stops || !next->isVisible() || !column.isAncestorOf(next)) continue;
        if (qobject_cast<QTabBar*>(next) != nullptr) continue;
        next->setFocus(Qt::TabFocusReason);
        return;
    }
}

void turn_page(QWidget& column, int step) {
    auto* strip = column.findChild<QTabBar*>();
    strip->setCurrentIndex((strip->currentIndex() + step + strip->count()) % strip->count());
    focus_page(column);
}

}  // namespace

void add_window_keys(QMainWindow& window, QWidget& left, QWidget& right) {
    add_key(window, QKeySequence("F10"),
            [bar = window.menuBar()] { bar->setActiveAction(bar->actions().constFirst()); });
    add_page_keys(window, [&left, &right]() -> QWidget& {
        return left.isAncestorOf(QApplication::focusWidget()) ? left : right;
    });
}

void add_page_keys(QWidget& window, const std::function<QWidget&()>& column) {
    add_key(window, QKeySequence("Ctrl+Tab"), [column] { turn_page(column(), +1); });
    add_key(window, QKeySequence("Ctrl+Shift+Tab"), [column] { turn_page(column(), -1); });
}

void press_on_enter(QLineEdit& field, QPushButton& button) {
    QObject::connect(&field, &QLineEdit::returnPressed, &button, [&field, &button] {
        button.click();
        field.setFocus(Qt::OtherFocusReason);
    });
}

void press_on_delete(ListView& list, QPushButton& button) {
    auto* key = new QShortcut(QKeySequence(Qt::Key_Delete), &list);
    key->setContext(Qt::WidgetShortcut);
    QObject::connect(key, &QShortcut::activated, &button, [&list, &button] {
        if (!list.currentIndex().isValid()) return;
        emit list.row_picked();
        button.click();
    });
}

EntriesByLetter::EntriesByLetter(QMenu& menu) : QObject(&menu), menu_(menu) {
    menu.installEventFilter(this);
}

bool EntriesByLetter::eventFilter(QObject*, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    const auto* key = static_cast<QKeyEvent*>(event);
    const bool letter = key->text().size() == 1 && key->text().front().isLetter();
    return letter && key->modifiers() == Qt::NoModifier && go_to_entry(key->text());
}

bool EntriesByLetter::go_to_entry(const QString& letter) {
    QList<QAction*> entries = menu_.actions();
    const qsizetype active = entries.indexOf(menu_.activeAction());
    std::rotate(entries.begin(), entries.begin() + active + 1, entries.end());
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const QAction* entry) {
        return entry->isEnabled() && entry->text().startsWith(letter, Qt::CaseInsensitive);
    });
    if (found == entries.end()) return false;
    menu_.setActiveAction(*found);
    return true;
}

}  // namespace tessarine
