#include "tour/watch.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPointer>

#include "tour/failure.h"

namespace tessarine::tour {
namespace {

constexpr int kMillisecondsBetween = 40;
// Time for a window to be laid out and painted before something is done in it.
constexpr int kSettle = 150;
constexpr int kLongestWait = 60'000;

}  // namespace

Watch::Watch() {
    QObject::connect(&timer_, &QTimer::timeout, this, &Watch::poll);
    timer_.start(kMillisecondsBetween);
}

void Watch::expect(const QString& name, Act act) {
    const auto is = [name](const QWidget& window) { return window.objectName() == name; };
    if (expected_.empty()) waiting_.start();
    expected_.push_back({name, is, std::move(act)});
}

void Watch::expect_chooser(Act act) {
    const auto is = [](const QWidget& window) {
        return qobject_cast<const QFileDialog*>(&window) != nullptr;
    };
    if (expected_.empty()) waiting_.start();
    expected_.push_back({QStringLiteral("file chooser"), is, std::move(act)});
}

void Watch::poll() {
    if (look_) look_();
    QWidget* popup = QApplication::activePopupWidget();
    QWidget* on_top = popup != nullptr ? popup : QApplication::activeModalWidget();
    if (const auto* box = qobject_cast<QMessageBox*>(on_top))
        fail("an unexpected message says: " + box->text());
    if (expected_.empty()) return;
    if (on_top == nullptr || !expected_.front().is(*on_top)) {
        check(waiting_.elapsed() < kLongestWait, expected_.front().what + " doesn't come up");
        return;
    }
    waiting_.start();
    const Act act = expected_.front().act;
    expected_.pop_front();
    QTimer::singleShot(kSettle, this, [act, window = QPointer<QWidget>(on_top)] {
        if (window != nullptr) act(*window);
    });
}

void Watch::check_all_seen() const {
    if (!expected_.empty()) fail(expected_.front().what + " hasn't come up");
}

}  // namespace tessarine::tour
