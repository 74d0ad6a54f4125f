#include "ui/repainter.h"

#include <QCoreApplication>
#include <utility>

#include "core/console_state.h"
#include "qt/qt_text.h"

namespace tessarine {
namespace {

constexpr qint64 kMillisecondsBetween = 33;
// A count changes for each record; asking the clock each time would cost more than the record.
constexpr unsigned kCountsPerLook = 64;

}  // namespace

Repainter::Repainter(EventDoor& door, InputGate& gate, std::function<void()> show_progress)
    : door_(door), gate_(gate), show_progress_(std::move(show_progress)) {
    since_last_.start();
    since_change_.start();
}

void Repainter::status_changed(StatusChange change) {
    changed_ = true;
    if (change == StatusChange::Count && ++counts_ % kCountsPerLook != 0) return;
    paint();
}

void Repainter::tick() {
    if (std::exchange(changed_, false)) since_change_.start();
    const auto& [text, after] = door_.console().pending_request;
    if (since_change_.hasExpired(after)) gate_.set_message(to_qt(text));
    paint();
    gate_.set_message({});
}

void Repainter::paint() {
    if (door_.held() || since_last_.elapsed() < kMillisecondsBetween) return;
    door_.hold(true);
    show_progress_();
    QCoreApplication::processEvents(gate_.shut() ? QEventLoop::AllEvents
                                                 : QEventLoop::ExcludeUserInputEvents);
    door_.hold(false);
    since_last_.restart();
}

}  // namespace tessarine
