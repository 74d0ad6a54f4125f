#include "ui/chart_pictures.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

#include "ui/chart_view.h"

namespace tessarine {

void QtChartPicture::copy_to_clipboard(const Chart& chart) {
    constexpr QSize kSize(320, 200);
    ChartView view;
    // It goes onto a sheet of paper, whatever the window's colours are.
    view.setPalette(QPalette(Qt::white));
    view.show_chart(chart);
    view.resize(kSize);
    // A picture of the widget itself would have the scale of the screen.
    QImage picture(kSize, QImage::Format_RGB32);
    picture.fill(Qt::white);
    view.render(&picture);
    QGuiApplication::clipboard()->setImage(picture);
}

}  // namespace tessarine
