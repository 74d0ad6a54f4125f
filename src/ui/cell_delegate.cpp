#include "ui/cell_delegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QTextDocument>
#include <QToolTip>
#include <algorithm>

namespace tessarine {
namespace {

// As many letters as fit if all of them were narrow, and one for the sign that there are more.
void cut_to_width(QString& text, const QStyleOptionViewItem& cell) {
    const int narrow = std::max(1, cell.fontMetrics.horizontalAdvance(QLatin1Char('i')));
    const int most = cell.rect.width() / narrow + 1;
    if (text.size() > most) text = text.left(most) + QChar(0x2026);
}

}  // namespace

void CellDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    cut_to_width(cell.text, cell);
    const QStyle* style = cell.widget != nullptr ? cell.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
}

// Other cells leave the event to the table, which has a tip of its own.
bool CellDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                             const QStyleOptionViewItem& option, const QModelIndex& index) {
    const bool elided = index.isValid() && sizeHint(option, index).width() > option.rect.width();
    if (event->type() != QEvent::ToolTip || !elided) {
        event->ignore();
        return false;
    }
    // Made rich by us, a long text is wrapped, and a host's text can't be taken for markup.
    const QString text = Qt::convertFromPlainText(index.data().toString(), Qt::WhiteSpaceNormal);
    QToolTip::showText(event->globalPos(), text, view, option.rect);
    return true;
}

}  // namespace tessarine
