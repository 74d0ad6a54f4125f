#include "core/status_bar.h"

#include <utility>

#include "core/runtime_error.h"

namespace tessarine {
namespace {

[[noreturn]] void invalid_value() {
    throw RuntimeError(ErrorNumber::Overflow, "Invalid property value");
}

}  // namespace

std::string StatusBar::text(int panel) const {
    const Panel& shown = panels_[static_cast<std::size_t>(panel - 1)];
    if (!shown.counting) return shown.text;
    std::string text(shown.count.before);
    text += std::to_string(shown.count.number);
    text += shown.count.after;
    if (shown.count.total >= 0) text += std::to_string(shown.count.total);
    return text;
}

void StatusBar::set_text(int panel, std::string text) {
    Panel& changed = panels_[static_cast<std::size_t>(panel - 1)];
    changed.text = std::move(text);
    changed.counting = false;
    if (hook_ != nullptr) hook_->status_changed(StatusChange::Text);
}

void ProgressBar::set_maximum(std::int64_t maximum) {
    if (maximum < 1) invalid_value();
    maximum_ = maximum;
    changed(StatusChange::Text);
}

void ProgressBar::set_visible(bool visible) {
    visible_ = visible;
    changed(StatusChange::Text);
}

void ProgressBar::set_value(std::int64_t value) {
    if (value < 0 || value > maximum_) invalid_value();
    value_ = value;
    changed(StatusChange::Count);
}

}  // namespace tessarine
