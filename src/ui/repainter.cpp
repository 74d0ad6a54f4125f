#include "ui/repainter.h"

#include <QCoreApplication>
#include <utility>

namespace tessarine {
namespace {

constexpr qint64 kMillisecondsBetween = 33;
// A count changes for each record; asking the clock each time would cost more than the record.
constexpr unsigned kCountsPerLook = 64;

}  // namespace

Repainter::Repainter(EventDoor& door, std::function<void()> show_progress)
    : door_(door), show_progress_(std::move(show_progress)) {
    since_last_.start();
}

void Repainter::status_changed(StatusChange change) {
    if (change == StatusChange::Count && ++counts_ % kCountsPerLook != 0) return;
    tick();
}

void Repainter::tick() {
    if (door_.held() || since_last_.elapsed() < kMillisecondsBetween) return;
    door_.hold(true);
    show_progress_();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    door_.hold(false);
    since_last_.restart();
}

}  // namespace tessarine
