// Brings a control's value to its widget.
#pragma once

#include "core/controls.h"
#include "core/status_bar.h"
#include "core/tab_strip.h"

class QWidget;

namespace tessarine {

class ListControl;

/// Each shows the control in the widget that was made for it (a QLabel for a Label, and so on)
/// without raising an event; a widget of another kind is left alone.
void show_control(const Label& control, QWidget& widget);
void show_control(const Image& control, QWidget& widget);
void show_control(const TextBox& control, QWidget& widget);
void show_control(const SecretBox& control, QWidget& widget);
void show_control(const ListBox& control, QWidget& widget);
inline void show_control(const UpDown&, QWidget&) {}
void show_control(const ComboBox& control, QWidget& widget);
void show_control(const CheckBox& control, QWidget& widget);
void show_control(const OptionButton& control, QWidget& widget);
inline void show_control(const Frame&, QWidget&) {}  // nothing of it changes
void show_control(const Chart& control, QWidget& widget);
void show_control(const CommandButton& control, QWidget& widget);
void show_control(const MonthView& control, QWidget& widget);
void show_control(const TabStrip& control, QWidget& widget);
void show_control(const StatusBar& control, QWidget& widget);
void show_control(const ProgressBar& control, QWidget& widget);
void show_control(const ListControl& control, QWidget& widget);

}  // namespace tessarine
