#include "ui/chart_view.h"

#include <QChartView>
#include <QGridLayout>
#include <QHelpEvent>
#include <QLabel>
#include <QToolTip>

#include "qt/qt_text.h"
#include "ui/chart_drawing.h"
#include "ui/widgets.h"

namespace tessarine {
namespace {

// Pixels at 96 dpi.
constexpr QSize kLeastSize(160, 130);
constexpr QSize kColourBoxSize(11, 11);

QString spoken(const Chart& chart) {
    QStringList columns;
    for (std::size_t i = 0; i < chart.points.size(); ++i) columns += column_text(chart, i);
    return columns.join(QStringLiteral(", "));
}

}  // namespace

ChartView::ChartView() : drawing_(new QChartView) {
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(kSpacing / 2);
    rows->addWidget(drawing_, 1);
    drawing_->setRenderHint(QPainter::Antialiasing);
    drawing_->setFocusPolicy(Qt::NoFocus);
    drawing_->viewport()->setAutoFillBackground(false);  // a frame has a ground of its own
    setMinimumSize(kLeastSize);
}

void ChartView::show_chart(const Chart& chart) {
    if (shown_ == chart) return;
    shown_ = chart;
    draw();
    draw_key();
    setAccessibleDescription(spoken(chart));
}

void ChartView::draw() {
    pointed_at_.clear();
    const std::unique_ptr<QChart> before(drawing_->chart());
    drawing_->setChart(new_drawing(*shown_, *this, [this](const QString& column) {
                           pointed_at_ = column;
                           QToolTip::hideText();
                       }).release());
}

void ChartView::draw_key() {
    delete key_;
    key_ = new QWidget;
    auto* grid = new QGridLayout(key_);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(kSpacing / 2);
    grid->setVerticalSpacing(0);
    for (std::size_t i = 0; i < shown_->points.size(); ++i) {
        const auto row = static_cast<int>(i);
        grid->addWidget(new_colour_box(shown_->series[i].colour), row, 0);
        auto* name = new QLabel(to_qt(shown_->series[i].name));
        name->setContentsMargins(0, 0, kSpacing / 4, 0);
        grid->addWidget(name, row, 1);
        grid->addWidget(new QLabel(number_text(shown_->points[i])), row, 2, Qt::AlignRight);
    }
    layout()->addWidget(key_);
    layout()->setAlignment(key_, Qt::AlignHCenter);
}

// The column below the mouse is told with the chart's own tip.
bool ChartView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip || pointed_at_.isEmpty()) return QWidget::event(event);
    const QString tip = toolTip().isEmpty() ? pointed_at_ : pointed_at_ + '\n' + toolTip();
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), tip, this);
    return true;
}

void ChartView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    const bool looks =
        event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange;
    if (looks && shown_) draw();
}

QWidget* new_colour_box(std::uint32_t colour) {
    auto* box = new QFrame;
    box->setFrameStyle(QFrame::Box | QFrame::Plain);
    box->setFixedSize(kColourBoxSize);
    QPalette palette;
    palette.setColor(QPalette::Window, qt_colour(colour));
    box->setPalette(palette);
    box->setAutoFillBackground(true);
    return box;
}

}  // namespace tessarine
