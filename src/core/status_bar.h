// The status bar and the progress bar: the two controls that show progress while a routine runs.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

/// What has changed: a text is shown at once, counts may be shown now and then.
enum class StatusChange { Text, Count };

/// Told of every change of a status bar or a progress bar, also while a routine keeps the thread.
class RepaintHook {
  public:
    virtual ~RepaintHook() = default;
    virtual void status_changed(StatusChange change) = 0;
};

/// A text with a number in it, formed only when somebody reads it, since most counts of a long run
/// are never seen. The views must outlive the panel's text: literals.
struct CountText {
    std::string_view before;
    std::int64_t number = 0;
    std::string_view after = {};
    std::int64_t total = -1;  ///< a second number at the end; none below 0
};

/// A status bar with panels counted from 1.
class StatusBar {
  public:
    explicit StatusBar(int panels) : panels_(static_cast<std::size_t>(panels)) {}

    int panel_count() const { return static_cast<int>(panels_.size()); }
    std::string text(int panel) const;

    void set_text(int panel, std::string text);
    void set_count(int panel, const CountText& count) {
        Panel& changed = panels_[static_cast<std::size_t>(panel - 1)];
        changed.count = count;
        changed.counting = true;
        if (hook_ != nullptr) hook_->status_changed(StatusChange::Count);
    }

    void set_repaint_hook(RepaintHook* hook) { hook_ = hook; }

  private:
    struct Panel {
        std::string text;
        CountText count;
        bool counting = false;
    };

    std::vector<Panel> panels_;
    RepaintHook* hook_ = nullptr;
};

/// A progress bar from 0 to its maximum, hidden at the start.
class ProgressBar {
  public:
    std::int64_t value() const { return value_; }
    std::int64_t maximum() const { return maximum_; }
    bool visible() const { return visible_; }

    /// Raises a RuntimeError for a maximum below 1.
    void set_maximum(std::int64_t maximum);
    void set_visible(bool visible);
    /// Raises a RuntimeError for a value outside 0 to the maximum.
    void set_value(std::int64_t value);

    void set_repaint_hook(RepaintHook* hook) { hook_ = hook; }

  private:
    void changed(StatusChange change) const {
        if (hook_ != nullptr) hook_->status_changed(change);
    }

    std::int64_t value_ = 0;
    std::int64_t maximum_ = 100;
    bool visible_ = false;
    RepaintHook* hook_ = nullptr;
};

}  // namespace tessarine
