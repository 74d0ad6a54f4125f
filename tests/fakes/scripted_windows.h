// Windows without a screen: a test says what the user does in each form.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "core/control_events.h"
#include "fakes/timeline.h"
#include "platform/form_windows.h"

namespace tessarine {
struct Console;
class FormBase;
}  // namespace tessarine

namespace tessarine::fakes {

/// The form of that id if it is loaded, else nothing.
FormBase* loaded_form(Console& console, FormId form);

/// A form that is shown comes up (its Activate event), the test's script for it runs, and then time
/// passes, timers and connections included, until it is hidden or unloaded. A form that nobody
/// closes fails the test.
class ScriptedWindows final : public FormWindows {
  public:
    using Script = std::function<void(Console&)>;

    ScriptedWindows(Timeline& timeline, std::span<const ControlEvent> events)
        : timeline_(timeline), events_(events) {}
    void attach(Console& console) { console_ = &console; }

    /// What the user does each time that `form` is shown.
    void when_shown(FormId form, Script script) { scripts_[form] = std::move(script); }
    /// What happens at the next place where events may pass; several calls queue up.
    void when_events_pass(Script script) { at_yields_.push_back(std::move(script)); }
    /// What happens at each of them.
    void at_each_yield(Script script) { at_each_yield_ = std::move(script); }

    /// Raises an event through the table; one that is not there has no effect.
    void raise(FormId form, EventKind kind);

    void let_events_pass() override;
    void show_modal(FormId form) override;
    void event_ended() override { ++events_ended; }
    void pop_up_menu(std::string_view menu) override { menus.emplace_back(menu); }

    std::vector<FormId> shown;
    std::vector<std::string> menus;  ///< context menus that were opened
    int yields = 0;
    int events_ended = 0;

  private:
    bool is_shown(FormId form) const;
    bool wait(FormId form, int& timer_due);

    Timeline& timeline_;
    std::span<const ControlEvent> events_;
    Console* console_ = nullptr;
    std::map<FormId, Script> scripts_;
    std::deque<Script> at_yields_;
    Script at_each_yield_;
};

}  // namespace tessarine::fakes
