// One TCP connection attempt on the window's event loop.
#pragma once

#include <QHostAddress>
#include <QList>
#include <QObject>
#include <QSocketNotifier>

#include "platform/tcp_probe.h"

class QHostInfo;

namespace tessarine {

/// A plain socket rather than Qt's, which can't tell a peer that closes from one that resets. A
/// host's addresses are tried one after the other.
class SocketProbe final : public QObject, public TcpProbe {
    Q_OBJECT

  public:
    SocketProbe() = default;
    ~SocketProbe() override { close(); }

    void connect(const std::string& host, int port, Events events) override;
    void close() override;

  private:
    void looked_up(const QHostInfo& host);
    void try_next_address();
    bool start(const QHostAddress& address);
    void decided();
    void read_on();
    void watch(QSocketNotifier::Type direction, void (SocketProbe::*then)());
    void stop_watching();
    void give_up_socket();
    void report(const std::function<void()>& event);

    Events events_;
    int port_ = 0;
    int look_up_ = -1;
    QList<QHostAddress> addresses_;
    int socket_ = -1;
    QSocketNotifier* notifier_ = nullptr;
};

}  // namespace tessarine
