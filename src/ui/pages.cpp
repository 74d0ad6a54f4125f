#include "ui/pages.h"

#include <QFrame>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

namespace tessarine {

void lay_out_pages(QWidget& column, QTabBar* bar, QStackedWidget* pages) {
    bar->setExpanding(false);
    bar->setDrawBase(false);
    // On a small screen captions are shortened, so that all tabs stay in sight.
    bar->setUsesScrollButtons(false);
    bar->setElideMode(Qt::ElideRight);
    auto* frame = new QFrame;
    frame->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    auto* inside = new QVBoxLayout(frame);
    inside->setContentsMargins(1, 1, 1, 1);
    inside->addWidget(pages);
    auto* rows = new QVBoxLayout(&column);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(bar);
    rows->addWidget(frame, 1);
}

QWidget* only_widget(QWidget* widget) {
    auto* page = new QWidget;
    auto* inside = new QVBoxLayout(page);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->addWidget(widget);
    return page;
}

}  // namespace tessarine
