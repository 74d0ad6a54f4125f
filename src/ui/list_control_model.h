// A list control's rows as a Qt table shows them.
#pragma once

#include <QAbstractTableModel>

#include "core/list/list_control.h"

namespace tessarine {

/// Reports as many rows as were there at the last `refresh`, whatever a running routine has done to
/// the list since, so that Qt's picture of the rows never breaks. Rows and columns count from 0.
class ListControlModel : public QAbstractTableModel {
    Q_OBJECT

  public:
    ListControlModel(ListControl& list, QObject* parent)
        : QAbstractTableModel(parent), list_(list) {}

    /// Takes over what has changed in the list.
    void refresh(const ListChanges& changes);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    /// The check box of a row is all that a view can change.
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    QVariant text(const ListControl::ConstRow& row, int column) const;
    QVariant picture(const ListControl::ConstRow& row, int column) const;
    bool has_box(const QModelIndex& index) const;

    ListControl& list_;
    int shown_ = 0;
};

}  // namespace tessarine
