#include "ui/form_timer.h"

namespace tessarine {
namespace {

// Milliseconds until the next try while a routine keeps all events back.
constexpr int kSoon = 20;

}  // namespace

FormTimer::FormTimer(EventDoor& door, FormId form, std::string_view name, const Timer& control,
                     QObject* parent)
    : QTimer(parent), door_(door), form_(form), name_(name) {
    setTimerType(Qt::PreciseTimer);
    connect(this, &QTimer::timeout, this, &FormTimer::raise);
    refresh(control);
}

void FormTimer::refresh(const Timer& control) {
    if (control.enabled == isActive()) return;
    interval_ = control.interval;
    control.enabled ? start(interval_) : stop();
}

void FormTimer::raise() {
    setInterval(door_.held() ? kSoon : interval_);
    door_.raise(form_, name_, EventKind::Timer);
}

}  // namespace tessarine
