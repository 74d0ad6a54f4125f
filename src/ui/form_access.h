// Reaching a form by its id, without loading it.
#pragma once

#include <string_view>
#include <type_traits>
#include <utility>

#include "core/console_state.h"

namespace tessarine {

/// Calls `use(form)` with the form of that id if it is loaded.
template <class Use>
void with_loaded_form(Console& console, FormId id, Use&& use) {
    const auto pass = [&](auto& form) {
        if (form.if_loaded() != nullptr) use(*form.if_loaded());
    };
    switch (id) {
        case FormId::Form1:
            if (console.Form1.loaded) use(console.Form1);
            break;
        case FormId::Form2:
            pass(console.Form2);
            break;
        case FormId::Form4:
            pass(console.Form4);
            break;
        case FormId::Form5:
            pass(console.Form5);
            break;
        case FormId::Form6:
            pass(console.Form6);
            break;
        case FormId::ConCheck:
            pass(console.ConCheck);
            break;
        case FormId::AboutForm:
            pass(console.AboutForm);
            break;
        default:
            break;  // Has no window yet.
    }
}

/// What the form of that id has of its own; nothing when it isn't loaded.
inline FormBase* loaded_form(Console& console, FormId id) {
    FormBase* found = nullptr;
    with_loaded_form(console, id, [&](FormBase& form) { found = &form; });
    return found;
}

/// Shows `see(name, control)` every control of the form, if it is loaded.
template <class Visitor>
void visit_controls(Console& console, FormId id, Visitor&& see) {
    with_loaded_form(console, id, [&](auto& form) { form.visit(see); });
}

/// Calls `change(control)` with the form's control of that name and kind, if there is one.
template <class Control, class Change>
void with_control(Console& console, FormId id, std::string_view name, Change&& change) {
    visit_controls(console, id, [&](std::string_view seen, auto& control) {
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(control)>, Control>)
            if (seen == name) change(control);
    });
}

/// The form's name, under which its own events (it comes up, its close box) stand in the table.
std::string_view form_name(FormId id);

/// Ends a form, as its close box does.
void unload_form(Console& console, FormId id);

}  // namespace tessarine
