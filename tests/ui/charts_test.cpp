// Charts, as they are drawn and as pictures.
#include <gtest/gtest.h>

#include <QApplication>
#include <QBarSet>
#include <QCategoryAxis>
#include <QChartView>
#include <QClipboard>
#include <QGraphicsSimpleTextItem>
#include <QHelpEvent>
#include <QPieSeries>
#include <QPieSlice>
#include <QStackedBarSeries>
#include <QTest>
#include <QToolTip>
#include <vector>

#include "ui/chart_pictures.h"
#include "ui/chart_view.h"

namespace tessarine {
namespace {

using Points = std::vector<std::int64_t>;

Chart chart_of(const Points& points, ChartType type = ChartType::Bar) {
    return {.series = {{"Error", rgb(255, 0, 0)},
                       {"Information", rgb(0, 192, 0)},
                       {"Warning", rgb(255, 213, 0)}},
            .points = points,
            .type = type};
}

const std::vector<QColor> kColours = {QColor(255, 0, 0), QColor(0, 192, 0), QColor(255, 213, 0)};

const QChart& drawn(const ChartView& view) {
    return *view.findChild<QChartView*>()->chart();
}

template <class Series>
const Series& series(const ChartView& view) {
    return dynamic_cast<const Series&>(*drawn(view).series().front());
}

QCategoryAxis& number_axis(const ChartView& view) {
    return dynamic_cast<QCategoryAxis&>(*drawn(view).axes(Qt::Vertical).front());
}

TEST(Charts, BarsStandOnZeroBesideFewWholeNumbers) {
    for (const auto& [points, numbers] :
         std::vector<std::pair<Points, QString>>{{{0, 0, 0}, "0|1"},
                                                 {{0, 1, 0}, "0|1"},
                                                 {{3, 2, 0}, "0|1|2|3"},
                                                 {{12, 340, 7}, "0|100|200|300"},
                                                 {{0, 99'999, 0}, "0|50,000"},
                                                 {{1, 2'000'000, 1}, "0|0.5 M|1 M|1.5 M|2 M"},
                                                 {{2'147'483'647, 0, 0}, "0|1,000 M|2,000 M"}}) {
        ChartView view;
        view.show_chart(chart_of(points));
        QCategoryAxis& axis = number_axis(view);
        EXPECT_EQ(axis.categoriesLabels().join('|'), numbers);
        EXPECT_EQ(axis.min(), 0);
        const auto highest = static_cast<double>(*std::max_element(points.begin(), points.end()));
        EXPECT_GT(axis.max(), highest);
    }
}

TEST(Charts, ABarHasItsOwnColourAndAllOfItsNumber) {
    ChartView view;
    view.show_chart(chart_of({5, 2'147'483'647, 0}));
    const QList<QBarSet*> bars = series<QStackedBarSeries>(view).barSets();
    ASSERT_EQ(bars.size(), 3);
    for (qsizetype i = 0; i < 3; ++i) EXPECT_EQ(bars[i]->color(), kColours[i]);
    EXPECT_EQ(bars[1]->at(1), 2'147'483'647);
    EXPECT_EQ(bars[1]->sum(), 2'147'483'647);
    EXPECT_GE(series<QStackedBarSeries>(view).labelsPrecision(), 10);
}

TEST(Charts, APieShowsWhatThereIsAndSaysWhenThereIsNothing) {
    const auto words = [](const ChartView& view) {
        QStringList all;
        for (const QPieSlice* slice : series<QPieSeries>(view).slices())
            if (slice->isLabelVisible()) all += slice->label();
        for (const QGraphicsItem* item : view.findChild<QChartView*>()->items())
            if (const auto* text = dynamic_cast<const QGraphicsSimpleTextItem*>(item))
                all += text->text();
        all.removeAll({});
        return all.join('|');
    };
    ChartView view;
    view.resize(300, 300);
    view.show();
    view.show_chart(chart_of({0, 0, 0}, ChartType::Pie));
    EXPECT_EQ(words(view), "No events");
    view.show_chart(chart_of({0, 0, 7}, ChartType::Pie));
    EXPECT_EQ(words(view), "100 %");
    EXPECT_EQ(series<QPieSeries>(view).slices().front()->color(), kColours[2]);
    EXPECT_EQ(series<QPieSeries>(view).slices().front()->pen().style(), Qt::NoPen);
    view.show_chart(chart_of({1, 2'000'000, 0}, ChartType::Pie));
    EXPECT_EQ(words(view), "> 99 %");
}

TEST(Charts, OnlyAnotherChartIsDrawnAnew) {
    ChartView view;
    view.show_chart(chart_of({1, 2, 3}));
    const QChart* first = &drawn(view);
    view.show_chart(chart_of({1, 2, 3}));
    EXPECT_EQ(&drawn(view), first);
    view.show_chart(chart_of({1, 2, 4'000}));
    EXPECT_NE(&drawn(view), first);
    EXPECT_EQ(view.accessibleDescription(), "Error: 1, Information: 2, Warning: 4,000");
}

TEST(Charts, WordsTakeTheColourOfANewPalette) {
    ChartView view;
    view.show_chart(chart_of({1, 2, 3}));
    QPalette palette(Qt::black);
    palette.setColor(QPalette::WindowText, QColor(0xEE, 0xEE, 0xEE));
    view.setPalette(palette);
    EXPECT_EQ(number_axis(view).labelsColor(), QColor(0xEE, 0xEE, 0xEE));
}

TEST(Charts, TheColumnBelowTheMouseIsToldWithTheChartsOwnTip) {
    ChartView view;
    view.setToolTip("Red=Error");
    view.resize(400, 300);
    view.show();
    view.show_chart(chart_of({9, 1, 1}));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    QWidget* viewport = view.findChild<QChartView*>()->viewport();
    const auto tip_at = [viewport](const QPoint& place) {
        QTest::mouseMove(viewport, place);
        QHelpEvent asked(QEvent::ToolTip, place, viewport->mapToGlobal(place));
        QApplication::sendEvent(viewport, &asked);
        return QToolTip::text();
    };
    const QPointF bar = view.findChild<QChartView*>()->chart()->mapToPosition({0, 4});
    EXPECT_EQ(tip_at(bar.toPoint()), "Error: 9\nRed=Error");
    EXPECT_EQ(tip_at({200, 10}), "Red=Error");
}

// It goes onto paper, so neither the theme nor the scale of the screen plays a part.
TEST(ChartPictures, AreOfOneSizeOnWhiteInTheColoursOfTheChart) {
    const QPalette before = QApplication::palette();
    QPalette dark(QColor(0x2B, 0x2E, 0x33));
    dark.setColor(QPalette::WindowText, Qt::white);
    QApplication::setPalette(dark);
    for (const ChartType type : {ChartType::Bar, ChartType::Pie}) {
        QtChartPicture().copy_to_clipboard(chart_of({300, 400, 500}, type));
        const QImage picture = QGuiApplication::clipboard()->image();
        EXPECT_EQ(picture.size(), QSize(320, 200));
        EXPECT_EQ(picture.devicePixelRatio(), 1);
        EXPECT_EQ(picture.pixelColor(0, 199), QColor(Qt::white));
        std::vector<int> pixels(kColours.size());
        for (int y = 0; y < picture.height(); ++y)
            for (int x = 0; x < picture.width(); ++x)
                for (std::size_t i = 0; i < pixels.size(); ++i)
                    pixels[i] += picture.pixelColor(x, y) == kColours[i] ? 1 : 0;
        for (const int found : pixels) EXPECT_GT(found, 1000);
    }
    QApplication::setPalette(before);
}

}  // namespace
}  // namespace tessarine
