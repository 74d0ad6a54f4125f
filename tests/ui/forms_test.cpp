// Every form: each control has its widget, its words, and its way to its routine.
#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QScreen>
#include <QTabBar>
#include <QTest>
#include <QToolBar>
#include <algorithm>
#include <array>
#include <utility>

#include "core/menus.h"
#include "qt/qt_text.h"
#include "ui/form_access.h"
#include "ui/list_view.h"
#include "ui/window_rig.h"

namespace tessarine::fakes {
namespace {

constexpr std::size_t kMostEvents = 128;

// The numbers, in the table, of the events that have been raised.
std::vector<std::size_t>& calls() {
    static std::vector<std::size_t> numbers;
    return numbers;
}

template <std::size_t number>
void note(Console&, const InputDetails&) {
    calls().push_back(number);
}

template <std::size_t... numbers>
constexpr std::array<decltype(ControlEvent::routine), sizeof...(numbers)> all_notes(
    std::index_sequence<numbers...>) {
    return {note<numbers>...};
}

// The console's table with routines that only note that they were called.
class RecordedEvents {
  public:
    RecordedEvents() {
        constexpr auto notes = all_notes(std::make_index_sequence<kMostEvents>());
        calls().clear();
        for (const ControlEvent& event : control_events()) {
            events_.push_back(event);
            events_.back().routine = notes.at(events_.size() - 1);
        }
    }

    std::span<const ControlEvent> events() const { return events_; }

    /// How often the event has been raised since the last question.
    std::ptrdiff_t taken(const ControlEvent& event) const {
        const auto number = static_cast<std::size_t>(&event - events_.data());
        const auto count = std::count(calls().begin(), calls().end(), number);
        calls().clear();
        return count;
    }

  private:
    std::vector<ControlEvent> events_;
};

template <class Control>
QString caption_of(const Control& control) {
    if constexpr (requires { control.caption; }) return to_qt(control.caption);
    return {};
}

template <class Control>
QString tip_of(const Control& control) {
    if constexpr (requires { control.tool_tip; }) return to_qt(control.tool_tip);
    return {};
}

QString shown_caption(const QWidget& widget) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) return button->text();
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) return label->text();
    if (const auto* group = qobject_cast<const QGroupBox*>(&widget)) return group->title();
    return {};
}

void expect_widgets(Console& console, FormId form, QWidget& window) {
    visit_controls(console, form, [&](std::string_view name, auto& control) {
        SCOPED_TRACE(std::string(form.name) + "." + std::string(name));
        auto* widget = window.findChild<QWidget*>(object_name(name));
        ASSERT_NE(widget, nullptr);
        EXPECT_EQ(widget->toolTip(), tip_of(control));
        EXPECT_EQ(shown_caption(*widget), caption_of(control));
        const bool is_text = qobject_cast<QLabel*>(widget) != nullptr;
        EXPECT_TRUE(is_text || !widget->accessibleName().isEmpty());
    });
}

// Does with a control what raises its click.
void click(QWidget& widget) {
    // A click on the button that is on is no event, so another of its group goes first.
    if (auto* option = qobject_cast<QRadioButton*>(&widget); option && option->isChecked())
        for (auto* other : option->parentWidget()->findChildren<QRadioButton*>(
                 QString(), Qt::FindDirectChildrenOnly))
            if (other != option) other->setChecked(true);
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) button->click();
    if (auto* tabs = qobject_cast<QTabBar*>(&widget)) tabs->setCurrentIndex(1);
    if (qobject_cast<ListView*>(&widget) != nullptr) click_row(widget, 0);
}

// The widget or the menu entry of that name, or the toolbar's button where there is no entry.
QObject* clickable(QObject& window, std::string_view name) {
    auto* found = window.findChild<QObject*>(object_name(name));
    const auto* button =
        std::find_if(kToolbar.begin(), kToolbar.end(),
                     [name](const ToolbarButton& each) { return each.raises == name; });
    if (found != nullptr || button == kToolbar.end()) return found;
    return window.findChild<QObject*>(QStringLiteral("Toolbar1_%1").arg(button->index));
}

void expect_clicks_arrive(const RecordedEvents& recorded, FormId form, QObject& window) {
    for (const ControlEvent& event : recorded.events()) {
        if (event.form != form || event.kind != EventKind::Click) continue;
        SCOPED_TRACE(std::string(event.control));
        recorded.taken(event);
        auto* found = clickable(window, event.control);
        ASSERT_NE(found, nullptr);
        if (auto* action = qobject_cast<QAction*>(found)) action->trigger();
        if (auto* widget = qobject_cast<QWidget*>(found)) click(*widget);
        EXPECT_EQ(recorded.taken(event), 1);
    }
}

TEST(Forms, EveryControlOfTheMainWindowHasItsWidgetAndItsRoutine) {
    const RecordedEvents recorded;
    WindowRig window(recorded.events());
    window.console.Form1.AlertList.add_row("4625", 0);
    window.console.Form1.IgnoreList.add_row("7036", 0);
    window.start();
    window.console.Form1.PosFrame1[2].visible = true;
    window.console.Form1.host_tab = 3;
    window.windows.refresh();
    expect_widgets(window.console, MainForm::kId, window.windows.main_window());
    expect_clicks_arrive(recorded, MainForm::kId, window.windows.main_window());
}

TEST(Forms, EveryControlOfTheDialogsHasItsWidgetAndItsRoutine) {
    const RecordedEvents recorded;
    WindowRig window(recorded.events());
    window.start();
    for (const FormId form :
         {SettingsForm::kId, CustomAuditForm::kId, GraphForm::kId, AddHostForm::kId,
          NetworkForm::kId, DirectoryForm::kId, AboutForm::kId, ConnectionCheckForm::kId}) {
        window.console.visit_forms([form](auto& each) {
            if constexpr (requires { each.get(); })
                if (each.kId == form) each.get();
        });
        window.when_open(form.name.data(), [&](QWidget& dialog) {
            expect_widgets(window.console, form, dialog);
            expect_clicks_arrive(recorded, form, dialog);
            run_event(window.console, [&](Console& console) { unload_form(console, form); });
        });
        run_event(window.console, [&](Console&) { window.windows.show_modal(form); });
    }
}

TEST(Forms, WhatLeadsNowhereIsDisabled) {
    WindowRig window;
    window.start();
    for (const MenuTableRow& row : kMenuTable) {
        if (row.entry == nullptr) continue;
        const bool leads_on =
            find_event(control_events(), MainForm::kId, row.name, EventKind::Click) != nullptr;
        EXPECT_EQ(window.find<QAction>(row.name.data()).isEnabled(), leads_on) << row.name;
    }
    EXPECT_TRUE(window.find("TxtSearch").isEnabled());
    EXPECT_TRUE(window.find("Command7").isEnabled());
    EXPECT_TRUE(window.find("SysErrors").isEnabled());
}

TEST(Forms, EveryToolbarButtonHasAPictureATipAndItsMenuEntrysRoutine) {
    const RecordedEvents recorded;
    WindowRig window(recorded.events());
    window.start();
    for (const ToolbarButton& button : kToolbar) {
        if (button.raises.empty()) continue;
        SCOPED_TRACE(std::string(button.tool_tip));
        const std::string name = "Toolbar1_" + std::to_string(button.index);
        auto& action = window.find<QAction>(name.c_str());
        EXPECT_FALSE(action.icon().isNull());
        EXPECT_EQ(action.toolTip(), object_name(button.tool_tip));
        const ControlEvent* event =
            find_event(recorded.events(), MainForm::kId, button.raises, EventKind::Click);
        EXPECT_EQ(action.isEnabled(), event != nullptr);
        action.trigger();
        EXPECT_TRUE(event == nullptr || recorded.taken(*event) == 1);
    }
}

TEST(Forms, MenusHaveALetterForEachEntryAndTheBarsCaptions) {
    WindowRig window;
    window.start();
    QStringList bar;
    for (const std::string_view menu : kMenuBar) bar += window.find<QMenu>(menu.data()).title();
    EXPECT_EQ(bar.join(' '), "&File &Hosts &Run &Preferences H&elp");
    EXPECT_EQ(window.find<QAction>("enumLan").text(), "&Enumerate Lan");
    EXPECT_FALSE(window.find<QAction>("loadfrmlist").icon().isNull());
}

// The screen of the tests is smaller than the window's least size.
TEST(Forms, TheWindowStaysWithinTheScreen) {
    WindowRig window;
    window.start();
    const QSize free = window.windows.main_window().screen()->availableSize();
    const QSize size = window.windows.main_window().size();
    EXPECT_LT(size.width(), free.width());
    EXPECT_LT(size.height(), free.height());
    EXPECT_LE(window.windows.main_window().minimumSize().width(), size.width());
}

TEST(Forms, TabWalksTheHostsPageThenTheRecords) {
    WindowRig window;
    window.start();
    QStringList walked;
    QWidget* first = &window.find("TabStrip1");
    QWidget* at = first;
    do {
        const bool stops = at->isVisible() && at->isEnabled() && (at->focusPolicy() & Qt::TabFocus);
        if (stops && !at->objectName().startsWith("qt_")) walked += at->objectName();
        at = at->nextInFocusChain();
    } while (at != first);
    walked.removeAll({});
    EXPECT_EQ(walked.join(' ').toStdString(),
              "TabStrip1 ListView1 TabStrip2 SysErrors SysWarnings SysInformations SystemList");
}

}  // namespace
}  // namespace tessarine::fakes
