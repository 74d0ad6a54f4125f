// Shows a chart of the console with the key to its colours and its numbers.
#pragma once

#include <QWidget>
#include <optional>

#include "core/controls.h"

class QChartView;

namespace tessarine {

class ChartView : public QWidget {
    Q_OBJECT

  public:
    ChartView();

    /// Draws the chart unless it is the one that shows already.
    void show_chart(const Chart& chart);

  protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    void draw();
    void draw_key();

    QChartView* drawing_;
    QWidget* key_ = nullptr;
    std::optional<Chart> shown_;
    QString pointed_at_;  // the column below the mouse
};

/// A small box of that colour, which `rgb` has made, for a legend.
QWidget* new_colour_box(std::uint32_t colour);

}  // namespace tessarine
