#include "ui/input_gate.h"

#include <QApplication>
#include <QMessageBox>
#include <QMouseEvent>
#include <QToolTip>

namespace tessarine {

void InputGate::shut_for_event(int events_running) {
    if (shut() || events_running == 0) return;
    shut_in_ = events_running;
    QCoreApplication::instance()->installEventFilter(this);
}

void InputGate::event_ended(int events_running) {
    if (events_running >= shut_in_) return;
    shut_in_ = 0;
    QCoreApplication::instance()->removeEventFilter(this);
}

bool InputGate::eventFilter(QObject*, QEvent* event) {
    if (qobject_cast<QMessageBox*>(QApplication::activeModalWidget()) != nullptr) return false;
    // At the end of the click, since a release takes tips away.
    const bool ends_click = event->type() == QEvent::MouseButtonRelease;
    if (ends_click && !message_.isEmpty())
        QToolTip::showText(static_cast<QMouseEvent*>(event)->globalPosition().toPoint(), message_);
    return event->isInputEvent() || event->type() == QEvent::Shortcut ||
           event->type() == QEvent::InputMethod;
}

}  // namespace tessarine
