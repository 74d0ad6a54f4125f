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
    console.visit_forms([&](auto& form) {
        auto* loaded = form.if_loaded();
        if (loaded != nullptr && loaded->kId == id) use(*loaded);
    });
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

/// Ends a form, as its close box does.
inline void unload_form(Console& console, FormId id) {
    console.visit_forms([id](auto& form) {
        if (form.kId == id) form.unload();
    });
}

}  // namespace tessarine
