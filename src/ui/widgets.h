// Small helpers for building windows: names and measures.
#pragma once

#include <QObject>
#include <QWidget>

namespace tessarine {

/// Margins and gaps of all windows, in pixels at 96 dpi.
inline constexpr int kMargin = 10;
inline constexpr int kSpacing = 8;

/// Gives a widget the name of its control.
template <class Widget>
Widget* named(Widget* widget, const char* name) {
    widget->setObjectName(name);
    return widget;
}

/// The same for one whose purpose no caption tells a screen reader.
template <class Widget>
Widget* named(Widget* widget, const char* name, const QString& accessible_name) {
    widget->setAccessibleName(accessible_name);
    return named(widget, name);
}

}  // namespace tessarine
