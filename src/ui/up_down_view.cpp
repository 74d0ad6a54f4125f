#include "ui/up_down_view.h"

#include <QKeyEvent>
#include <QToolButton>
#include <QVBoxLayout>

namespace tessarine {

UpDownView::UpDownView(QWidget& field) {
    auto* arrows = new QVBoxLayout(this);
    arrows->setContentsMargins(0, 0, 0, 0);
    arrows->setSpacing(0);
    for (const int step : {1, -1}) {
        auto* arrow = new QToolButton;
        arrow->setArrowType(step > 0 ? Qt::UpArrow : Qt::DownArrow);
        arrow->setAccessibleName(step > 0 ? tr("Up") : tr("Down"));
        arrow->setAutoRepeat(true);
        // The keys do it in the field.
        arrow->setFocusPolicy(Qt::NoFocus);
        arrow->setFixedSize(field.sizeHint().height() * 3 / 4, field.sizeHint().height() / 2);
        connect(arrow, &QToolButton::clicked, this, [this, step] { emit stepped(step); });
        arrows->addWidget(arrow);
    }
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    field.installEventFilter(this);
}

bool UpDownView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key != Qt::Key_Up && key != Qt::Key_Down) return QWidget::eventFilter(watched, event);
    emit stepped(key == Qt::Key_Up ? 1 : -1);
    return true;
}

}  // namespace tessarine
