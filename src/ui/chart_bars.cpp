#include <QBarSet>
#include <QCategoryAxis>
#include <QFontMetricsF>
#include <QLocale>
#include <QStackedBarSeries>
#include <algorithm>

#include "ui/chart_canvas.h"

namespace tessarine {
namespace {

constexpr double kBarWidth = 0.6;
// The height of the plot by that of the highest bar.
constexpr double kRoomAboveBars = 1.25;
// The height of a line of text with what Qt keeps free around it, by that of the font.
constexpr double kLineHeight = 1.6;
// Between two texts side by side, in pixels.
constexpr double kTextGap = 8;
// The widest numbers at the left of the plot, by the width of the canvas.
constexpr double kMostForNumbers = 0.25;
// All digits of the largest count, 2,147,483,647.
constexpr int kDigits = 10;

// The distance of the lines up to `top`: 1, 2 or 5 with zeros.
std::int64_t line_distance(std::int64_t top) {
    constexpr std::int64_t kMostLines = 4;
    for (std::int64_t power = 1;; power *= 10)
        for (const int times : {1, 2, 5})
            if (kMostLines * times * power >= top) return times * power;
}

QString line_text(std::int64_t value, std::int64_t top, const QLocale& locale) {
    constexpr std::int64_t kMillion = 1'000'000;
    if (top < kMillion || value == 0) return number_text(value);
    const double millions = static_cast<double>(value) / static_cast<double>(kMillion);
    return QObject::tr("%1 M").arg(locale.toString(millions, 'g', 6));
}

void style_axis(const ChartCanvas& canvas, QAbstractAxis& axis) {
    QColor lines = canvas.text_colour();
    lines.setAlphaF(0.5F);
    axis.setLinePen(QPen(lines, 1));
    lines.setAlphaF(0.15F);
    axis.setGridLinePen(QPen(lines, 1));
    axis.setLabelsFont(canvas.ground.font());
    axis.setLabelsColor(canvas.text_colour());
    axis.setTruncateLabels(false);  // those without room are not shown at all
}

// Lines at whole numbers from 0 on, with room for a number above the highest bar.
QCategoryAxis* new_number_axis(const ChartCanvas& canvas) {
    std::int64_t top = 1;
    for (const std::int64_t point : canvas.chart.points) top = std::max(top, point);
    auto* axis = new QCategoryAxis;
    axis->setLabelsPosition(QCategoryAxis::AxisLabelsPositionOnValue);
    const std::int64_t distance = line_distance(top);
    for (std::int64_t value = 0; value <= top; value += distance)
        axis->append(line_text(value, top, canvas.qt.locale()), static_cast<double>(value));
    axis->setRange(0, static_cast<double>(top) * kRoomAboveBars);
    style_axis(canvas, *axis);
    return axis;
}

// A column lies around the number that it has, from 0.
QCategoryAxis* new_name_axis(const ChartCanvas& canvas) {
    constexpr double kHalf = 0.5;
    auto* axis = new QCategoryAxis;
    axis->setStartValue(-kHalf);
    const std::size_t columns = canvas.columns();
    for (std::size_t i = 0; i < columns; ++i)
        axis->append(canvas.name(i), static_cast<double>(i) + kHalf);
    axis->setRange(-kHalf, static_cast<double>(columns) - kHalf);
    style_axis(canvas, *axis);
    axis->setGridLineVisible(false);
    return axis;
}

// A stack of one part at the place of its column, so that each bar has a colour of its own.
QBarSet* new_bar(const ChartCanvas& canvas, std::size_t column) {
    auto* bar = new QBarSet(canvas.name(column));
    for (std::size_t i = 0; i < canvas.columns(); ++i)
        bar->append(i == column ? canvas.number(i) : 0);
    bar->setColor(canvas.colour(column));
    bar->setPen(canvas.outline());
    bar->setLabelColor(canvas.text_colour());
    QObject::connect(bar, &QBarSet::hovered, &canvas.qt, canvas.pointing_at(column));
    return bar;
}

double widest(const QFontMetricsF& font, const QStringList& texts) {
    double width = 0;
    for (const QString& text : texts) width = std::max(width, font.horizontalAdvance(text));
    return width;
}

struct BarParts {
    QStackedBarSeries* bars;
    QCategoryAxis* numbers;
    QCategoryAxis* names;
};

// Shows the words and numbers around the bars as far as none of them would meet or be cut off.
void fit_texts(const ChartCanvas& canvas, const BarParts& parts) {
    const QFontMetricsF font(canvas.ground.font());
    QStringList counts;
    for (const std::int64_t point : canvas.chart.points) counts += number_text(point);
    const double name_width = widest(font, parts.names->categoriesLabels()) + kTextGap;
    const double count_width = widest(font, counts) + kTextGap;
    const double number_width = widest(font, parts.numbers->categoriesLabels());
    const double line_height = font.height() * kLineHeight;
    const double share_above = 1 - 1 / kRoomAboveBars;
    const double share_of_line =
        parts.numbers->endValue(parts.numbers->categoriesLabels().at(1)) / parts.numbers->max();
    canvas.fit_to_plot([=, drawn = &canvas.qt](const QRectF& plot) {
        const double column = plot.width() / parts.bars->count();
        parts.names->setLabelsVisible(column > name_width);
        parts.numbers->setLabelsVisible(plot.height() * share_of_line > line_height &&
                                        number_width < drawn->size().width() * kMostForNumbers);
        parts.bars->setLabelsVisible(column > count_width &&
                                     plot.height() * share_above > line_height);
    });
}

}  // namespace

void draw_bars(const ChartCanvas& canvas) {
    auto* bars = new QStackedBarSeries;
    for (std::size_t i = 0; i < canvas.columns(); ++i) bars->append(new_bar(canvas, i));
    // A chart of few columns has no wider bars than one of three.
    bars->setBarWidth(kBarWidth * std::min(1.0, static_cast<double>(canvas.columns()) / 3));
    bars->setLabelsPosition(QAbstractBarSeries::LabelsOutsideEnd);
    bars->setLabelsPrecision(kDigits);
    canvas.qt.addSeries(bars);
    const BarParts parts{bars, new_number_axis(canvas), new_name_axis(canvas)};
    canvas.qt.addAxis(parts.numbers, Qt::AlignLeft);
    canvas.qt.addAxis(parts.names, Qt::AlignBottom);
    bars->attachAxis(parts.numbers);
    bars->attachAxis(parts.names);
    fit_texts(canvas, parts);
}

}  // namespace tessarine
