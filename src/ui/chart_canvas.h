// What drawing a chart's bars and drawing its slices have in common.
#pragma once

#include <QChart>
#include <QPen>
#include <QWidget>

#include "core/controls.h"
#include "qt/qt_text.h"
#include "ui/chart_drawing.h"

namespace tessarine {

struct ChartCanvas {
    QChart& qt;
    const Chart& chart;
    const QWidget& ground;
    const Pointed& pointed;

    std::size_t columns() const { return chart.points.size(); }
    double number(std::size_t column) const { return static_cast<double>(chart.points[column]); }
    QString name(std::size_t column) const { return to_qt(chart.series[column].name); }
    QColor colour(std::size_t column) const { return qt_colour(chart.series[column].colour); }
    QColor text_colour() const { return ground.palette().color(QPalette::WindowText); }
    /// Of any width but 1, which a slice of Qt's takes for having no pen yet.
    QPen outline() const { return QPen(text_colour(), 1.2); }

    /// What to call with true when the mouse comes over a column, and with false when it leaves.
    auto pointing_at(std::size_t column) const {
        return [tell = pointed, text = column_text(chart, column)](bool over) {
            tell(over ? text : QString());
        };
    }

    /// Calls `fit` with the place of the plot, now and each time that it changes.
    template <class Fit>
    void fit_to_plot(const Fit& fit) const {
        QObject::connect(&qt, &QChart::plotAreaChanged, &qt, fit);
        fit(qt.plotArea());
    }
};

void draw_bars(const ChartCanvas& canvas);
void draw_pie(const ChartCanvas& canvas);

}  // namespace tessarine
