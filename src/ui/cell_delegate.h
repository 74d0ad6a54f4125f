// How the cells of the tables are painted.
#pragma once

#include <QStyledItemDelegate>

namespace tessarine {

/// Cuts a text to what its cell has room for before it is measured: most of the time that a page of
/// long messages takes goes into letters that nobody sees.
class CellDelegate final : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

}  // namespace tessarine
