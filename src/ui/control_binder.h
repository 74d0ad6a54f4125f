// Joins a form's controls to the widgets of the same names.
#pragma once

#include <QObject>
#include <map>
#include <string_view>

#include "core/controls.h"
#include "core/list/list_control.h"
#include "core/status_bar.h"
#include "core/tab_strip.h"
#include "ui/event_door.h"

class QCalendarWidget;
class QWidget;

namespace tessarine {

/// For each control of one form: takes its widget (the descendant of `window` with the control's
/// name as object name), gives it its tool tip and accessible name, writes what the user does into
/// the control and raises the control's events. It reaches the form anew each time, since a form
/// can be unloaded while its window is still there.
class ControlBinder : public QObject {
    Q_OBJECT

  public:
    /// The form must be loaded.
    ControlBinder(EventDoor& door, FormId form, QWidget& window);

    /// Brings all controls' values to their widgets, and the focus to where the form wants it.
    void refresh();

    /// The widget of the control of that name, or nothing.
    QWidget* widget(std::string_view name) const;
    EventDoor& door() const { return door_; }
    FormId form() const { return form_; }

    void raise(std::string_view control, EventKind kind, const InputDetails& details = {}) const {
        door_.raise(form_, control, kind, details);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    bool leads_on(std::string_view control, EventKind kind) const {
        return door_.leads_on(form_, control, kind);
    }
    // Writes the calendar's day into its control; returns whether it was another one.
    bool take_over_day(std::string_view name, const QCalendarWidget& calendar);

    // One for each kind of control: connects the widget's signals. `name` lives as long as the
    // program, as all names of controls do.
    void bind(std::string_view name, const Label& control, QWidget& widget);
    void bind(std::string_view name, const TextBox& control, QWidget& widget);
    void bind(std::string_view name, const SecretBox& control, QWidget& widget);
    void bind(std::string_view name, const ComboBox& control, QWidget& widget);
    void bind(std::string_view name, const CheckBox& control, QWidget& widget);
    void bind(std::string_view name, const UpDown& control, QWidget& widget);
    void bind(std::string_view, const Frame& control, QWidget& widget);
    void bind(std::string_view name, const OptionButton& control, QWidget& widget);
    void bind(std::string_view, const Chart& control, QWidget& widget);
    void bind(std::string_view name, const CommandButton& control, QWidget& widget);
    void bind(std::string_view name, const MonthView& control, QWidget& widget);
    void bind(std::string_view name, const TabStrip& control, QWidget& widget);
    void bind(std::string_view name, const ListControl& control, QWidget& widget);
    void bind(std::string_view, const ListBox&, QWidget&) {}
    void bind(std::string_view, const StatusBar&, QWidget&) {}
    void bind(std::string_view, const ProgressBar&, QWidget&) {}
    void bind(std::string_view, const Image&, QWidget&) {}

    EventDoor& door_;
    FormId form_;
    std::map<std::string_view, QWidget*> widgets_;
};

}  // namespace tessarine
