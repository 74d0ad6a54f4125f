// A status bar of panels side by side.
#pragma once

#include <QStatusBar>
#include <initializer_list>
#include <vector>

class QLabel;

namespace tessarine {

/// Panels count from 1. A text that is too long for its panel is cut with an ellipsis and can be
/// read in the panel's tool tip.
class StatusBarView : public QStatusBar {
    Q_OBJECT

  public:
    /// One panel for each weight; the panels share the width by their weights.
    StatusBarView(const char* name, std::initializer_list<int> weights);

    void show_panel(int panel, const QString& text);
    /// Lays `widget` over the panel, in place of a text.
    void lay_over(int panel, QWidget* widget);

  private:
    std::vector<QLabel*> panels_;
};

}  // namespace tessarine
