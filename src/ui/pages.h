// Pages under a tab bar.
#pragma once

class QStackedWidget;
class QTabBar;
class QWidget;

namespace tessarine {

/// Lays the bar and, in a frame below it, the pages into `column`. Which page shows is the
/// console's to say, not the bar's.
void lay_out_pages(QWidget& column, QTabBar* bar, QStackedWidget* pages);

/// A page that one widget fills.
QWidget* only_widget(QWidget* widget);

}  // namespace tessarine
