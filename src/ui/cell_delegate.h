// How the cells of the tables are painted.
#pragma once

#include <QStyledItemDelegate>

namespace tessarine {

/// Cuts a text to what its cell has room for before it is measured: most of the time that a page of
/// long messages takes goes into letters that nobody sees. A text that has no room has a tip with
/// all of it.
class CellDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
};

}  // namespace tessarine
