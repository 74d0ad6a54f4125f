#include "tour/album.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <QWidget>
#include <algorithm>
#include <cstdio>

#include "tour/failure.h"

namespace tessarine::tour {
namespace {

constexpr int kTitleHeight = 24;

int layer(const QWidget* window) {
    if (window->windowType() == Qt::Popup) return 2;
    return window->windowType() == Qt::Dialog ? 1 : 0;
}

// The main window first, what lies over it after that.
QWidgetList open_windows() {
    QWidgetList windows;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->windowType() != Qt::ToolTip) windows += window;
    std::stable_sort(windows.begin(), windows.end(), [](const QWidget* left, const QWidget* right) {
        return layer(left) < layer(right);
    });
    return windows;
}

QRect place_of(const QWidget* window) {
    const int title = layer(window) == 2 ? 0 : kTitleHeight;
    return QRect(window->mapToGlobal(QPoint()), window->size()).adjusted(0, -title, 0, 0);
}

// Windows have no frames where no window manager runs, so the pictures draw their titles.
void draw(QPainter& painter, QWidget* window, const QRect& place) {
    if (layer(window) < 2) {
        const QRect title(place.topLeft(), QSize(place.width(), kTitleHeight));
        painter.fillRect(title, QColor(0x3C, 0x49, 0x58));
        painter.setPen(Qt::white);
        painter.drawText(title.adjusted(8, 0, -8, 0), Qt::AlignVCenter, window->windowTitle());
    }
    painter.drawPixmap(place.bottomLeft() - QPoint(0, window->height() - 1), window->grab());
    painter.setPen(QColor(0x3C, 0x49, 0x58));
    painter.drawRect(place.adjusted(0, 0, -1, -1));
}

}  // namespace

Album::Album(const QString& folder) : folder_(folder) {
    check(folder_.mkpath(QStringLiteral(".")), "the folder " + folder + " can't be made");
    // Pictures of an earlier tour may have other numbers.
    for (const QString& name : folder_.entryList({QStringLiteral("[0-9][0-9]-*.png")}, QDir::Files))
        folder_.remove(name);
}

void Album::take(const QString& title) {
    const QWidgetList windows = open_windows();
    QRect all;
    for (const QWidget* window : windows) all |= place_of(window);
    const double scale = windows.isEmpty() ? 1 : windows.first()->devicePixelRatioF();
    QPixmap picture(all.size() * scale);
    picture.setDevicePixelRatio(scale);
    picture.fill(QColor(0x80, 0x88, 0x90));
    {
        QPainter painter(&picture);
        for (QWidget* window : windows)
            draw(painter, window, place_of(window).translated(-all.topLeft()));
    }
    const QString name =
        QStringLiteral("%1-%2.png").arg(++taken_, 2, 10, QLatin1Char('0')).arg(title);
    check(picture.save(folder_.filePath(name)), name + " can't be written");
    std::printf("  %s\n", qPrintable(name));
    std::fflush(stdout);
}

}  // namespace tessarine::tour
