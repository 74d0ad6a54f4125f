#include "ui/list_view.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>

#include "qt/qt_text.h"
#include "ui/cell_delegate.h"

namespace tessarine {
namespace {

// Pixels; a narrower message is scrolled sideways.
constexpr int kLeastMessageWidth = 220;
constexpr int kPictureWidth = 16;
// What a type's text has beside it in its cell, picture and all.
constexpr int kTypeMargin = 34;

}  // namespace

ListView::ListView(ListControl& list, Selects selects, Widths widths)
    : list_(list), model_(new ListControlModel(list, this)), widths_(widths) {
    setModel(model_);
    setItemDelegate(new CellDelegate(this));
    setSelectionBehavior(SelectRows);
    setSelectionMode(selects == Selects::ManyRows ? ExtendedSelection : SingleSelection);
    setEditTriggers(NoEditTriggers);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(widths != Widths::EventTable);
    set_row_height();
    connect(selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &ListView::write_selection);
    connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex& current) { list_.set_selected_item(current.row() + 1); });
}

void ListView::set_row_height() {
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(std::max(fontMetrics().height() + 4, 20));
}

void ListView::refresh() {
    setToolTip(to_qt(list_.tool_tip));
    setShowGrid(list_.grid_lines);
    horizontalHeader()->setSortIndicatorShown(list_.in_order());
    horizontalHeader()->setSortIndicator(
        list_.sort_key(),
        list_.sort_order() == SortOrder::Ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
    const ListChanges changes = list_.take_changes();
    model_->refresh(changes);
    show_selection(changes);
    if (changes.scrolled_to > 0) scrollTo(model_->index(changes.scrolled_to - 1, 0));
}

void ListView::show_selection(const ListChanges& changes) {
    if (list_.selected_item() != currentIndex().row() + 1) {
        const QModelIndex row = model_->index(list_.selected_item() - 1, 0);
        const auto command = selectionMode() == SingleSelection
                                 ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                                 : QItemSelectionModel::NoUpdate;
        // Only what the user does, or the list asks for, scrolls.
        setAutoScroll(false);
        selectionModel()->setCurrentIndex(row, command);
        setAutoScroll(true);
    }
    const bool rows_changed = changes.reset || changes.first <= changes.last;
    if (rows_changed && selectionMode() == ExtendedSelection) select_flagged_rows();
}

// The rows' own marks are what the console's commands go by; the view follows them.
void ListView::select_flagged_rows() {
    QItemSelection flagged;
    const int last_column = model_->columnCount() - 1;
    for (int row = 0; row < model_->rowCount(); ++row)
        if (list_.row(row + 1).selected())
            flagged.merge(QItemSelection(model_->index(row, 0), model_->index(row, last_column)),
                          QItemSelectionModel::Select);
    selectionModel()->select(flagged, QItemSelectionModel::ClearAndSelect);
}

void ListView::write_selection(const QItemSelection& selected, const QItemSelection& deselected) {
    const auto write = [this](const QItemSelection& ranges, bool flag) {
        for (const QItemSelectionRange& range : ranges)
            list_.take_selection(range.top() + 1, std::min(range.bottom() + 1, list_.count()),
                                 flag);
    };
    write(deselected, false);
    write(selected, true);
}

void ListView::mousePressEvent(QMouseEvent* event) {
    QTableView::mousePressEvent(event);
    // What follows can open a menu and remove rows; it must come last.
    emit button_pressed(button_of(*event), event->globalPosition().toPoint());
}

void ListView::mouseReleaseEvent(QMouseEvent* event) {
    QTableView::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid())
        emit row_picked();
    emit button_released(button_of(*event), event->globalPosition().toPoint());
}

void ListView::mouseDoubleClickEvent(QMouseEvent* event) {
    QTableView::mouseDoubleClickEvent(event);
    if (event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid())
        emit row_opened();
}

// The menu key and Shift+F10 stand for the right button; the mouse itself has its own events.
void ListView::contextMenuEvent(QContextMenuEvent* event) {
    event->accept();
    if (event->reason() != QContextMenuEvent::Keyboard) return;
    const QPoint on_screen = place_of_current_row();
    emit button_pressed(MouseButton::Right, on_screen);
    emit button_released(MouseButton::Right, on_screen);
}

// What a click and a double click do, the keys do too.
void ListView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (currentIndex().isValid()) emit row_opened();
        return;
    }
    if (event->matches(QKeySequence::Copy)) {
        copy_marked_rows();
        return;
    }
    const int before = currentIndex().row();
    QTableView::keyPressEvent(event);
    // Space picks the row that is selected already, as a click on it does.
    if (!currentIndex().isValid()) return;
    if (currentIndex().row() == before && event->key() != Qt::Key_Space) return;
    emit row_picked();
    emit button_released(MouseButton::Left, place_of_current_row());
}

// Home and End go to rows, since whole rows are what is selected.
QModelIndex ListView::moveCursor(CursorAction action, Qt::KeyboardModifiers keys) {
    if (action == MoveHome) return model_->index(0, 0);
    if (action == MoveEnd) return model_->index(model_->rowCount() - 1, 0);
    return QTableView::moveCursor(action, keys);
}

// One line a row, its fields joined by tabs.
void ListView::copy_marked_rows() const {
    QStringList lines;
    QModelIndexList rows = selectionModel()->selectedRows();
    std::sort(rows.begin(), rows.end());
    for (const QModelIndex& marked : rows) {
        const auto row = list_.row(marked.row() + 1);
        QStringList fields(to_qt(row.text()));
        for (int column = 1; column < model_->columnCount(); ++column)
            if (column <= row.sub_item_count()) fields.append(to_qt(row.sub_item(column)));
        lines.append(fields.join(QLatin1Char('\t')));
    }
    if (!lines.isEmpty()) QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

QPoint ListView::place_of_current_row() const {
    const QPoint place = currentIndex().isValid() ? visualRect(currentIndex()).center() : QPoint();
    return viewport()->mapToGlobal(place);
}

void ListView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    share_width(width());
}

void ListView::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange) set_row_height();
}

// A scroll bar that comes or goes changes the inside of the view alone.
void ListView::share_width(int width) {
    const QSize size(width, window()->height());
    if (size == shared_) return;
    const int room = room_in(width);
    if (widths_ == Widths::EventTable) {
        share_event_width(room);
    } else {
        for (int column = 0; column < model_->columnCount(); ++column)
            setColumnWidth(column, column_width(column, room));
    }
    shared_ = size;
}

// What is left when the rows need a scroll bar.
int ListView::room_in(int width) const {
    return width - 2 * frameWidth() - verticalScrollBar()->sizeHint().width();
}

int ListView::column_width(int column, int width) const {
    const int equal = width / model_->columnCount();
    if (widths_ == Widths::Equal) return equal;
    return std::min(equal, horizontalHeader()->sectionSizeHint(column) + kPictureWidth);
}

// At first the message takes what the others leave; from then on the others share what it leaves.
void ListView::share_event_width(int width) {
    const int message = model_->columnCount() - 1;
    const bool first = shared_.isEmpty();
    const int share =
        first ? first_event_column_width(width, message)
              : std::max(least_event_column_width(), (width - columnWidth(message)) / message);
    for (int column = 0; column < message; ++column) setColumnWidth(column, share);
    if (first) setColumnWidth(message, std::max(kLeastMessageWidth, width - message * share));
}

// Wide enough for a type with its picture.
int ListView::least_event_column_width() const {
    return fontMetrics().horizontalAdvance(QStringLiteral("Information")) + kTypeMargin;
}

// Up to half of the table for all of them, as long as that leaves room for the message.
int ListView::first_event_column_width(int width, int columns) const {
    const int german_type = fontMetrics().horizontalAdvance(QStringLiteral("Informationen"));
    const int most = std::max(german_type + kTypeMargin, width / (2 * columns));
    return std::clamp((width - kLeastMessageWidth) / columns, least_event_column_width(), most);
}

}  // namespace tessarine
