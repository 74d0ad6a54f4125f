// Keeps the user from the windows while the console waits for a host or a mail server.
#pragma once

#include <QObject>
#include <QString>

namespace tessarine {

/// While it is shut, keys and mouse lead nowhere but to the buttons of a message. A modal dialog
/// would do as much, but the window system's wish to close a window never gets past one, and the
/// close box is to be heard.
class InputGate : public QObject {
    Q_OBJECT

  public:
    bool shut() const { return shut_in_ > 0; }
    /// Shuts until the running event has ended; `events_running` is how many do, one within the
    /// other. Stays open without any.
    void shut_for_event(int events_running);
    void event_ended(int events_running);

    /// What a click is told at the pointer; nothing for an empty text.
    void set_message(const QString& message) { message_ = message; }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    int shut_in_ = 0;
    QString message_;
};

}  // namespace tessarine
