#include "ui/control_binder.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <algorithm>
#include <utility>

#include "qt/qt_text.h"
#include "ui/form_access.h"
#include "ui/list_view.h"
#include "ui/secret_edit.h"
#include "ui/show_control.h"
#include "ui/up_down_view.h"

namespace tessarine {
namespace {

// A caption without the "&" that marks its letter.
QString plain_caption(const std::string& caption) {
    return to_qt(caption).remove(QLatin1Char('&'));
}

void describe(QWidget& widget, const std::string& caption, const std::string& tool_tip) {
    if (!tool_tip.empty()) widget.setToolTip(to_qt(tool_tip));
    if (!widget.accessibleName().isEmpty()) return;
    widget.setAccessibleName(caption.empty() ? to_qt(tool_tip) : plain_caption(caption));
}

Date date_of(const QDate& day) {
    return {.year = day.year(), .month = day.month(), .day = day.day()};
}

}  // namespace

ControlBinder::ControlBinder(EventDoor& door, FormId form, QWidget& window)
    : QObject(&window), door_(door), form_(form) {
    visit_controls(door_.console(), form_, [&](std::string_view name, auto& control) {
        auto* found = window.findChild<QWidget*>(object_name(name));
        if (found == nullptr) return;
        widgets_.emplace(name, found);
        bind(name, control, *found);
    });
}

QWidget* ControlBinder::widget(std::string_view name) const {
    const auto found = widgets_.find(name);
    return found == widgets_.end() ? nullptr : found->second;
}

void ControlBinder::refresh() {
    visit_controls(door_.console(), form_, [&](std::string_view name, auto& control) {
        if (QWidget* shown = widget(name)) show_control(control, *shown);
    });
    FormBase* form = loaded_form(door_.console(), form_);
    if (form == nullptr) return;
    if (QWidget* wanted = widget(form->take_focus_wish())) wanted->setFocus(Qt::OtherFocusReason);
}

void ControlBinder::bind(std::string_view, const Label& control, QWidget& widget) {
    // What stands in it may come from a host or a file, and may look like tags.
    if (auto* label = qobject_cast<QLabel*>(&widget)) label->setTextFormat(Qt::PlainText);
    // A label is read out by its text, which changes; a name of its own would hide that.
    widget.setToolTip(to_qt(control.tool_tip));
}

void ControlBinder::bind(std::string_view name, const TextBox& control, QWidget& widget) {
    describe(widget, {}, control.tool_tip);
    auto* line = qobject_cast<QLineEdit*>(&widget);
    if (line == nullptr) return;
    connect(line, &QLineEdit::textEdited, this, [this, name](const QString& text) {
        with_control<TextBox>(door_.console(), form_, name,
                              [&](TextBox& box) { box.text = from_qt(text); });
    });
    connect(line, &QLineEdit::returnPressed, this,
            [this, name] { raise(name, EventKind::EnterKey); });
    if (!leads_on(name, EventKind::GotFocus) && !leads_on(name, EventKind::MouseDown)) return;
    line->setContextMenuPolicy(Qt::NoContextMenu);
    line->installEventFilter(this);
}

void ControlBinder::bind(std::string_view name, const SecretBox&, QWidget& widget) {
    auto* edit = qobject_cast<SecretEdit*>(&widget);
    if (edit == nullptr) return;
    const auto change = [this, name, edit](int start, int count, const QString& inserted) {
        with_control<SecretBox>(door_.console(), form_, name, [&](SecretBox& box) {
            box.text.replace(static_cast<std::size_t>(start), static_cast<std::size_t>(count),
                             from_qt(inserted));
            show_control(box, *edit);
        });
    };
    connect(edit, &SecretEdit::changed, this, change);
}

void ControlBinder::bind(std::string_view name, const UpDown&, QWidget& widget) {
    auto* arrows = qobject_cast<UpDownView*>(&widget);
    if (arrows == nullptr) return;
    connect(arrows, &UpDownView::stepped, this, [this, name](int step) {
        bool changed = false;
        with_control<UpDown>(door_.console(), form_, name, [&](UpDown& written) {
            const int value = std::clamp(written.value + step, written.minimum, written.maximum);
            changed = std::exchange(written.value, value) != value;
        });
        if (changed) raise(name, EventKind::Change);
    });
}

// The focus and the mouse buttons of fields that have events for them.
bool ControlBinder::eventFilter(QObject* watched, QEvent* event) {
    const std::string name = watched->objectName().toStdString();
    if (event->type() == QEvent::FocusIn) raise(name, EventKind::GotFocus);
    if (event->type() == QEvent::MouseButtonPress) {
        const auto* press = static_cast<QMouseEvent*>(event);
        raise(name, EventKind::MouseDown, {.button = button_of(*press)});
    }
    return false;
}

void ControlBinder::bind(std::string_view name, const ComboBox& control, QWidget& widget) {
    describe(widget, {}, control.tool_tip);
    auto* combo = qobject_cast<QComboBox*>(&widget);
    if (combo == nullptr) return;
    connect(combo, &QComboBox::editTextChanged, this, [this, name](const QString& text) {
        with_control<ComboBox>(door_.console(), form_, name,
                               [&](ComboBox& box) { box.text = from_qt(text); });
    });
}

void ControlBinder::bind(std::string_view name, const CheckBox& control, QWidget& widget) {
    describe(widget, control.caption, control.tool_tip);
    auto* box = qobject_cast<QCheckBox*>(&widget);
    if (box == nullptr) return;
    box->setText(to_qt(control.caption));
    connect(box, &QCheckBox::clicked, this, [this, name](bool checked) {
        with_control<CheckBox>(door_.console(), form_, name,
                               [&](CheckBox& written) { written.value = checked ? 1 : 0; });
        raise(name, EventKind::Click);
    });
}

void ControlBinder::bind(std::string_view, const Frame& control, QWidget& widget) {
    describe(widget, control.caption, control.tool_tip);
    if (auto* group = qobject_cast<QGroupBox*>(&widget)) group->setTitle(to_qt(control.caption));
}

// The button that another of its group switches off tells of it as well, but that is no event.
void ControlBinder::bind(std::string_view name, const OptionButton& control, QWidget& widget) {
    describe(widget, control.caption, {});
    auto* button = qobject_cast<QRadioButton*>(&widget);
    if (button == nullptr) return;
    button->setText(to_qt(control.caption));
    // Buttons of other frames have the same captions.
    if (const auto* group = qobject_cast<QGroupBox*>(button->parentWidget()))
        button->setAccessibleDescription(group->title());
    connect(button, &QRadioButton::toggled, this, [this, name](bool on) {
        with_control<OptionButton>(door_.console(), form_, name,
                                   [&](OptionButton& written) { written.value = on; });
        if (on) raise(name, EventKind::Click);
    });
}

void ControlBinder::bind(std::string_view, const Chart& control, QWidget& widget) {
    describe(widget, {}, control.tool_tip);
}

void ControlBinder::bind(std::string_view name, const CommandButton& control, QWidget& widget) {
    describe(widget, control.caption, control.tool_tip);
    widget.setEnabled(leads_on(name, EventKind::Click));
    if (auto* button = qobject_cast<QPushButton*>(&widget))
        connect(button, &QPushButton::clicked, this,
                [this, name] { raise(name, EventKind::Click); });
}

// With the mouse a day is chosen by a click. With the keys it is walked to, and chosen by Enter or
// by leaving the calendar: an event at each step would take the focus away from whoever walks.
void ControlBinder::bind(std::string_view name, const MonthView&, QWidget& widget) {
    auto* calendar = qobject_cast<QCalendarWidget*>(&widget);
    if (calendar == nullptr) return;
    const auto choose = [this, name, calendar] {
        take_over_day(name, *calendar);
        raise(name, EventKind::DateClick);
    };
    connect(calendar, &QCalendarWidget::clicked, this, choose);
    connect(calendar, &QCalendarWidget::activated, this, choose);
    connect(qApp, &QApplication::focusChanged, this, [this, name, calendar](QWidget* left) {
        const bool left_calendar = left != nullptr && calendar->isAncestorOf(left);
        if (left_calendar && take_over_day(name, *calendar)) raise(name, EventKind::DateClick);
    });
}

bool ControlBinder::take_over_day(std::string_view name, const QCalendarWidget& calendar) {
    bool changed = false;
    const Date chosen = date_of(calendar.selectedDate());
    with_control<MonthView>(door_.console(), form_, name, [&](MonthView& view) {
        changed = view.value != chosen;
        view.value = chosen;
    });
    return changed;
}

void ControlBinder::bind(std::string_view name, const TabStrip&, QWidget& widget) {
    auto* bar = qobject_cast<QTabBar*>(&widget);
    if (bar == nullptr) return;
    connect(bar, &QTabBar::currentChanged, this, [this, name](int index) {
        with_control<TabStrip>(door_.console(), form_, name,
                               [&](TabStrip& strip) { strip.selected = index + 1; });
        raise(name, EventKind::Click);
    });
}

void ControlBinder::bind(std::string_view name, const ListControl& control, QWidget& widget) {
    describe(widget, control.columns.front().caption, control.tool_tip);
    auto* view = qobject_cast<ListView*>(&widget);
    if (view == nullptr) return;
    connect(view, &ListView::row_picked, this, [this, name] { raise(name, EventKind::Click); });
    connect(view, &ListView::button_pressed, this,
            [this, name](MouseButton button, const QPoint& place) {
                door_.set_menu_place(place);
                raise(name, EventKind::MouseDown, {.button = button});
            });
    connect(view, &ListView::button_released, this,
            [this, name](MouseButton button, const QPoint& place) {
                door_.set_menu_place(place);
                raise(name, EventKind::MouseUp, {.button = button});
            });
    connect(view, &ListView::row_opened, this,
            [this, name] { raise(name, EventKind::DoubleClick); });
    const bool sorts = leads_on(name, EventKind::ColumnClick);
    view->horizontalHeader()->setSectionsClickable(sorts);
    connect(view->horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this, name](int section) {
                raise(name, EventKind::ColumnClick, {.column = section + 1});
            });
}

}  // namespace tessarine
