#include "fakes/scripted_windows.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "core/console_state.h"
#include "core/run_event.h"

namespace tessarine::fakes {
namespace {

constexpr int kNever = std::numeric_limits<int>::max();

// When the form's own timer is due, counted from `shown_at`; only ConCheck has one.
int timer_due(Console& console, FormId form, int shown_at) {
    const ConnectionCheckForm* check = console.ConCheck.if_loaded();
    const bool runs = form == ConnectionCheckForm::kId && check != nullptr && check->Timer1.enabled;
    return runs ? shown_at + check->Timer1.interval : kNever;
}

}  // namespace

FormBase* loaded_form(Console& console, FormId form) {
    FormBase* loaded = nullptr;
    console.visit_forms([&](auto& each) {
        if (each.kId == form) loaded = each.if_loaded();
    });
    return loaded;
}

void ScriptedWindows::raise(FormId form, EventKind kind) {
    const auto found = std::find_if(events_.begin(), events_.end(), [&](const ControlEvent& event) {
        return event.form == form && event.kind == kind;
    });
    if (found != events_.end())
        run_event(*console_, [&](Console& console) { found->routine(console, {}); });
}

void ScriptedWindows::let_events_pass() {
    ++yields;
    while (timeline_.next_moment().value_or(kNever) <= timeline_.now())
        timeline_.pass_to(timeline_.now());
    if (at_each_yield_) run_event(*console_, at_each_yield_);
    if (at_yields_.empty()) return;
    const Script script = at_yields_.front();
    at_yields_.pop_front();
    run_event(*console_, script);
}

void ScriptedWindows::show_modal(FormId form) {
    shown.push_back(form);
    FormBase* its_form = loaded_form(*console_, form);
    if (its_form == nullptr) {
        ADD_FAILURE() << form.name << " is shown but not loaded";
        return;
    }
    its_form->visible = true;
    const int shown_at = timeline_.now();
    raise(form, EventKind::Activate);
    const auto script = scripts_.find(form);
    if (script != scripts_.end() && is_shown(form)) run_event(*console_, script->second);
    int due = timer_due(*console_, form, shown_at);
    bool waiting = true;
    while (waiting && is_shown(form)) waiting = wait(form, due);
    raise(MainForm::kId, EventKind::Activate);
}

bool ScriptedWindows::is_shown(FormId form) const {
    const FormBase* its_form = loaded_form(*console_, form);
    return its_form != nullptr && its_form->visible;
}

// Lets one thing happen; false when nothing is left that could. A timer fires once: the form that
// has one ends with it.
bool ScriptedWindows::wait(FormId form, int& timer_due) {
    const int next = timeline_.next_moment().value_or(kNever);
    if (next == kNever && timer_due == kNever) {
        ADD_FAILURE() << form.name << " is shown and nobody closes it";
        return false;
    }
    timeline_.pass_to(std::min(next, timer_due));
    if (next > timer_due) {
        timer_due = kNever;
        raise(form, EventKind::Timer);
    }
    return true;
}

}  // namespace tessarine::fakes
