#include "ui/status_bar_view.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

namespace tessarine {
namespace {

// A label that never asks for the width of its text, so that no status text widens the window.
class Panel : public QLabel {
  public:
    Panel() {
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
        setTextFormat(Qt::PlainText);
        setMinimumHeight(fontMetrics().height() + 6);
    }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        drawFrame(&painter);
        const QRect inside = contentsRect().adjusted(4, 0, -4, 0);
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, inside.width());
        painter.drawText(inside, Qt::AlignLeft | Qt::AlignVCenter, shown);
    }
};

}  // namespace

StatusBarView::StatusBarView(const char* name, std::initializer_list<int> weights) {
    setObjectName(name);
    setAccessibleName(tr("Status"));
    for (const int weight : weights) {
        auto* panel = new Panel;
        panels_.push_back(panel);
        panel->setObjectName(QStringLiteral("%1_panel%2").arg(name).arg(panels_.size()));
        addWidget(panel, weight);
    }
}

void StatusBarView::show_panel(int panel, const QString& text) {
    QLabel* label = panels_[static_cast<std::size_t>(panel - 1)];
    if (label->text() == text) return;
    label->setText(text);
    label->setToolTip(text);
}

void StatusBarView::lay_over(int panel, QWidget* widget) {
    auto* inside = new QHBoxLayout(panels_[static_cast<std::size_t>(panel - 1)]);
    inside->setContentsMargins(3, 2, 3, 2);
    inside->addWidget(widget);
}

}  // namespace tessarine
