// The table that shows a list control.
#pragma once

#include <QTableView>

#include "core/list/list_control.h"
#include "ui/event_door.h"
#include "ui/list_control_model.h"

namespace tessarine {

/// Shows the rows of one list control and writes what the user selects into it. It knows nothing of
/// events: its signals tell what the user does with the rows. Rows and columns count from 1 in
/// them.
class ListView : public QTableView {
    Q_OBJECT

  public:
    enum class Selects { OneRow, ManyRows };
    /// Where the width goes: into equal shares; or as in event tables, equal shares but for the
    /// last, which holds the message; or as in the tables of the analysis, where codes and counts
    /// are hardly wider than their headings and the source takes the rest.
    enum class Widths { Equal, EventTable, AnalysisTable };

    ListView(ListControl& list, Selects selects, Widths widths = Widths::Equal);

    /// Shows what the list holds now.
    void refresh();

    /// Shares the view's width among the columns, once for each size of its window: widths set by
    /// hand last until the window is resized.
    void share_width(int width);

  signals:
    // The full name of the type, as connections by name would need it.
    void button_pressed(tessarine::MouseButton button, const QPoint& place);
    void button_released(tessarine::MouseButton button, const QPoint& place);
    void row_picked();
    void row_opened();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers keys) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void set_row_height();
    QPoint place_of_current_row() const;
    void copy_marked_rows() const;
    int room_in(int width) const;
    int column_width(int column, int width) const;
    void share_event_width(int width);
    int least_event_column_width() const;
    int first_event_column_width(int width, int columns) const;
    void show_selection(const ListChanges& changes);
    void write_selection(const QItemSelection& selected, const QItemSelection& deselected);
    void select_flagged_rows();

    ListControl& list_;
    ListControlModel* model_;
    Widths widths_;
    QSize shared_;  ///< the view's width and the window's height that the columns are for
};

}  // namespace tessarine
