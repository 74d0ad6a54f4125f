#include <QFontMetricsF>
#include <QGraphicsEllipseItem>
#include <QPieSeries>
#include <algorithm>
#include <numbers>

#include "ui/chart_canvas.h"

namespace tessarine {
namespace {

constexpr double kPieSize = 0.94;
constexpr double kRoomAroundWords = 1.25;
// Qt takes a slice's black words for words without a colour.
constexpr QColor kDarkWords(0x10, 0x10, 0x10);

double pie_width(const QRectF& plot) {
    return std::min(plot.width(), plot.height()) * kPieSize;
}

// The circle around the slices: a lone slice has no border of its own, which would be a line to
// the middle. A pie of no slices is a ring around words.
void draw_rim(const ChartCanvas& canvas, const QString& words) {
    auto* rim = new QGraphicsEllipseItem(&canvas.qt);
    rim->setPen(canvas.outline());
    rim->setZValue(canvas.qt.zValue() + 100);
    auto* inside = new QGraphicsSimpleTextItem(words, rim);
    inside->setFont(canvas.ground.font());
    inside->setBrush(canvas.text_colour());
    canvas.fit_to_plot([rim, inside](const QRectF& plot) {
        QRectF circle(0, 0, pie_width(plot), pie_width(plot));
        circle.moveCenter(plot.center());
        rim->setRect(circle);
        inside->setPos(circle.center() - inside->boundingRect().center());
    });
}

QString percent_text(double share) {
    const int percent = qRound(share * 100);
    return percent == 100 && share < 1 ? QObject::tr("> 99 %") : QObject::tr("%1 %").arg(percent);
}

void add_slice(const ChartCanvas& canvas, QPieSeries& pie, std::size_t column, double share) {
    const QColor colour = canvas.colour(column);
    QPieSlice* slice = pie.append(percent_text(share), canvas.number(column));
    slice->setBrush(colour);
    slice->setPen(share < 1 ? canvas.outline() : QPen(Qt::NoPen));
    slice->setLabelPosition(QPieSlice::LabelInsideHorizontal);
    slice->setLabelFont(canvas.ground.font());
    slice->setLabelColor(qGray(colour.rgb()) < 60 ? QColor(Qt::white) : kDarkWords);
    // The words lie half way to the rim, and show where the slice is wide enough there.
    const QFontMetricsF font(canvas.ground.font());
    const double least_arc = kRoomAroundWords * font.horizontalAdvance(slice->label());
    canvas.fit_to_plot([slice, share, least_arc](const QRectF& plot) {
        slice->setLabelVisible(share * std::numbers::pi * pie_width(plot) / 2 > least_arc);
    });
    QObject::connect(slice, &QPieSlice::hovered, &canvas.qt, canvas.pointing_at(column));
}

}  // namespace

void draw_pie(const ChartCanvas& canvas) {
    auto* pie = new QPieSeries;
    pie->setPieSize(kPieSize);
    canvas.qt.addSeries(pie);
    double sum = 0;
    for (std::size_t i = 0; i < canvas.columns(); ++i) sum += canvas.number(i);
    for (std::size_t i = 0; i < canvas.columns(); ++i)
        if (canvas.number(i) > 0) add_slice(canvas, *pie, i, canvas.number(i) / sum);
    draw_rim(canvas, pie->isEmpty() ? QObject::tr("No events") : QString());
}

}  // namespace tessarine
