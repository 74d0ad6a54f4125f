// What happens while the tour's own thread is inside a dialog or a menu.
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <functional>

namespace tessarine::tour {

/// Waits for dialogs and menus to come up, in the order in which they are expected, and lets the
/// tour act in each. A message box that nobody expects, or a dialog that doesn't come, ends the
/// tour.
class Watch : public QObject {
    Q_OBJECT

  public:
    using Act = std::function<void(QWidget&)>;

    Watch();

    /// Expects the modal window or the menu of that object name; `act` runs once it is there.
    void expect(const QString& name, Act act);
    /// Expects a file chooser, or a message box.
    void expect_chooser(Act act);
    void expect_message(Act act);

    /// What to do some times a second as well.
    void also(std::function<void()> look) { look_ = std::move(look); }

    /// Fails unless everything that was expected has come.
    void check_all_seen() const;

  private:
    struct Expected {
        QString what;
        std::function<bool(const QWidget&)> is;
        Act act;
    };
    void expect(Expected expected);
    void poll();

    QTimer timer_;
    std::deque<Expected> expected_;
    QPointer<QWidget> met_;  // the last window that came as expected
    QElapsedTimer waiting_;
    std::function<void()> look_;
};

}  // namespace tessarine::tour
