#include "ui/chart_drawing.h"

#include <QGraphicsLayout>
#include <QLegend>
#include <QLocale>

#include "ui/chart_canvas.h"

namespace tessarine {
namespace {

QLocale grouping_locale() {
    QLocale locale;
    locale.setNumberOptions(locale.numberOptions() & ~QLocale::OmitGroupSeparator);
    return locale;
}

}  // namespace

QColor qt_colour(std::uint32_t colour) {
    constexpr std::uint32_t kByte = 0xFF;
    return QColor(static_cast<int>(colour & kByte), static_cast<int>(colour >> 8 & kByte),
                  static_cast<int>(colour >> 16 & kByte));
}

QString number_text(std::int64_t number) {
    return grouping_locale().toString(static_cast<qlonglong>(number));
}

QString column_text(const Chart& chart, std::size_t column) {
    return to_qt(chart.series[column].name) + ": " + number_text(chart.points[column]);
}

std::unique_ptr<QChart> new_drawing(const Chart& chart, const QWidget& ground,
                                    const Pointed& pointed) {
    auto qt = std::make_unique<QChart>();
    qt->legend()->hide();
    qt->setBackgroundVisible(false);
    qt->setMargins({});
    qt->layout()->setContentsMargins(0, 0, 0, 0);
    qt->setLocalizeNumbers(true);
    qt->setLocale(grouping_locale());
    const ChartCanvas canvas{*qt, chart, ground, pointed};
    chart.type == ChartType::Pie ? draw_pie(canvas) : draw_bars(canvas);
    return qt;
}

}  // namespace tessarine
