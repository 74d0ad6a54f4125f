// The lifetime of the console's forms.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "platform/form_windows.h"

namespace tessarine {

/// What every form has of its own.
class FormBase {
  public:
    std::string caption;
    bool visible = false;
    int mouse_pointer = 0;  ///< 0 the usual one, 11 the hourglass

    /// Has the control of that name get the focus next. `control` must last, as a literal does.
    void want_focus(std::string_view control) { focus_wanted_ = control; }
    /// Hands out the control that is to get the focus; empty for none since the last call.
    std::string_view take_focus_wish() { return std::exchange(focus_wanted_, {}); }

  private:
    std::string_view focus_wanted_;
};

/// A form that comes into being at first touch and ends when it is unloaded; the next touch makes
/// it anew. `->` means "this may load it".
template <class FormType>
class Form {
  public:
    static constexpr FormId kId = FormType::kId;
    using Routine = std::function<void(FormType&)>;
    using Maker = std::function<std::unique_ptr<FormType>()>;

    explicit Form(Maker make = std::make_unique<FormType>) : make_(std::move(make)) {}

    bool loaded() const { return form_ != nullptr; }

    /// What runs when the form is loaded. A touch from within it finds the form loaded.
    void when_loaded(Routine routine) { when_loaded_ = std::move(routine); }

    FormType* operator->() { return &get(); }
    FormType& get() {
        if (!form_) {
            form_ = make_();
            if (when_loaded_) when_loaded_(*form_);
        }
        return *form_;
    }

    /// The form if it is loaded, else nothing; never loads it.
    FormType* if_loaded() { return form_.get(); }

    void unload() { form_.reset(); }

  private:
    Maker make_;
    std::unique_ptr<FormType> form_;
    Routine when_loaded_;
};

}  // namespace tessarine
