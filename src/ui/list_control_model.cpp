#include "ui/list_control_model.h"

#include <QApplication>
#include <QColor>
#include <QIcon>
#include <QPalette>
#include <algorithm>

#include "qt/qt_text.h"
#include "ui/pictures.h"

namespace tessarine {
namespace {

// A cell shows no more than this: a message can be 30,000 characters long, and measuring them all
// for each painted row would make scrolling slow.
constexpr std::size_t kShownCharacters = 600;

// Red as it is, but for a dark ground, on which it can't be read.
QColor readable_red() {
    const bool dark_ground = QApplication::palette().base().color().lightness() < 128;
    return dark_ground ? QColor(0xFF, 0x8A, 0x80) : QColor(Qt::red);
}

}  // namespace

void ListControlModel::refresh(const ListChanges& changes) {
    const int count = list_.count();
    if (changes.reset || count < shown_) {
        beginResetModel();
        shown_ = count;
        endResetModel();
        return;
    }
    const int last = std::min(changes.last, shown_);
    if (changes.first <= last)
        emit dataChanged(index(changes.first - 1, 0), index(last - 1, columnCount() - 1));
    if (count > shown_) {
        beginInsertRows({}, shown_, count - 1);
        shown_ = count;
        endInsertRows();
    }
}

int ListControlModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : shown_;
}

int ListControlModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(list_.columns.size());
}

QVariant ListControlModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= list_.count()) return {};
    const ListControl::ConstRow row = list_.row(index.row() + 1);
    const int column = index.column();
    switch (role) {
        case Qt::DisplayRole:
            return text(row, column);
        case Qt::DecorationRole:
            return picture(row, column);
        case Qt::CheckStateRole:
            return has_box(index) ? QVariant(row.checked() ? Qt::Checked : Qt::Unchecked)
                                  : QVariant();
        case Qt::ForegroundRole:
            return row.fore_colour(column) == kRed ? QVariant(readable_red()) : QVariant();
        case Qt::AccessibleDescriptionRole:
            return column == 0 ? QVariant() : picture_description(row.report_icon(column));
        default:
            return {};
    }
}

QVariant ListControlModel::text(const ListControl::ConstRow& row, int column) const {
    if (column > row.sub_item_count()) return {};
    const std::string_view cell = column == 0 ? row.text() : row.sub_item(column);
    QString shown = to_qt(cell.substr(0, kShownCharacters));
    if (cell.size() > kShownCharacters) shown += QChar(0x2026);
    // A tab would tear a one-line cell apart, and Qt cuts such a text too early.
    return shown.replace(QLatin1Char('\t'), QLatin1Char(' '));
}

QVariant ListControlModel::picture(const ListControl::ConstRow& row, int column) const {
    return list_picture(column == 0 ? row.small_icon() : row.report_icon(column));
}

bool ListControlModel::has_box(const QModelIndex& index) const {
    return list_.check_boxes && index.isValid() && index.column() == 0 &&
           index.row() < list_.count();
}

bool ListControlModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    if (role != Qt::CheckStateRole || !has_box(index)) return false;
    list_.take_check(index.row() + 1, value.toInt() == Qt::Checked);
    emit dataChanged(index, index);
    return true;
}

Qt::ItemFlags ListControlModel::flags(const QModelIndex& index) const {
    const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
    return has_box(index) ? usual | Qt::ItemIsUserCheckable : usual;
}

QVariant ListControlModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || section < 0 || section >= columnCount()) return {};
    if (role == Qt::TextAlignmentRole) return static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole) return {};
    return to_qt(list_.columns[static_cast<std::size_t>(section)].caption);
}

}  // namespace tessarine
