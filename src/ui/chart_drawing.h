// Draws the console's charts, as bars or as a pie.
#pragma once

#include <QColor>
#include <QString>
#include <cstdint>
#include <functional>
#include <memory>

class QChart;
class QWidget;

namespace tessarine {

struct Chart;

/// A colour of the console, which `rgb` has made.
QColor qt_colour(std::uint32_t colour);

/// A count as it is read: "1,234,567".
QString number_text(std::int64_t number);

/// A chart's column, from 0: "Error: 12".
QString column_text(const Chart& chart, std::size_t column);

/// Is told "Error: 12" when the mouse comes over that column, and nothing when it leaves.
using Pointed = std::function<void(const QString&)>;

/// Draws the chart in the font of `ground`, the widget that it will lie on, and so that it stands
/// out from it. A number or a name shows where there is room for it.
std::unique_ptr<QChart> new_drawing(const Chart& chart, const QWidget& ground,
                                    const Pointed& pointed);

}  // namespace tessarine
