#include "tour/watch.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <algorithm>

#include "tour/failure.h"

namespace tessarine::tour {
namespace {

constexpr int kMillisecondsBetween = 40;
// Time for a window to be laid out and painted before something is done in it.
constexpr int kSettle = 150;
constexpr int kLongestWait = 60'000;

template <class Kind>
bool is_a(const QWidget& window) {
    return qobject_cast<const Kind*>(&window) != nullptr;
}

// A dialog need not be modal.
QWidget* window_on_top() {
    if (QWidget* popup = QApplication::activePopupWidget()) return popup;
    if (QWidget* modal = QApplication::activeModalWidget()) return modal;
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto dialog = std::find_if(windows.begin(), windows.end(), [](const QWidget* window) {
        return window->isVisible() && is_a<QDialog>(*window);
    });
    return dialog == windows.end() ? nullptr : *dialog;
}

}  // namespace

Watch::Watch() {
    QObject::connect(&timer_, &QTimer::timeout, this, &Watch::poll);
    timer_.start(kMillisecondsBetween);
}

void Watch::expect(Expected expected) {
    if (expected_.empty()) waiting_.start();
    expected_.push_back(std::move(expected));
}

void Watch::expect(const QString& name, Act act) {
    const auto is = [name](const QWidget& window) { return window.objectName() == name; };
    expect({name, is, std::move(act)});
}

void Watch::expect_chooser(Act act) {
    expect({QStringLiteral("file chooser"), is_a<QFileDialog>, std::move(act)});
}

void Watch::expect_message(Act act) {
    expect({QStringLiteral("message box"), is_a<QMessageBox>, std::move(act)});
}

void Watch::poll() {
    if (look_) look_();
    QWidget* on_top = window_on_top();
    const bool is_expected =
        on_top != nullptr && !expected_.empty() && expected_.front().is(*on_top);
    if (const auto* box = qobject_cast<QMessageBox*>(on_top);
        box != nullptr && !is_expected && box != met_)
        fail("an unexpected message says: " + box->text());
    if (expected_.empty()) return;
    if (!is_expected) {
        check(waiting_.elapsed() < kLongestWait, expected_.front().what + " doesn't come up");
        return;
    }
    waiting_.start();
    met_ = on_top;
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
