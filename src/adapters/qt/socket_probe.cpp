#include "adapters/qt/socket_probe.h"

#include <netdb.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QHostInfo>
#include <QSocketNotifier>
#include <array>
#include <cerrno>
#include <string>
#include <utility>

#include "qt/qt_text.h"

namespace tessarine {
namespace {

struct AddressList {
    ~AddressList() {
        if (first != nullptr) ::freeaddrinfo(first);
    }
    addrinfo* first = nullptr;
};

// The address in the form of the socket calls; with numbers alone this asks no server.
bool fill(AddressList& list, const QHostAddress& address, int port) {
    addrinfo hints{};
    hints.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV;
    hints.ai_socktype = SOCK_STREAM;
    const std::string host = address.toString().toStdString();
    return ::getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &list.first) == 0;
}

}  // namespace

void SocketProbe::connect(const std::string& host, int port, Events events) {
    close();
    events_ = std::move(events);
    port_ = port;
    look_up_ = QHostInfo::lookupHost(to_qt(host), this,
                                     [this](const QHostInfo& found) { looked_up(found); });
}

void SocketProbe::close() {
    // The look-up goes on, but its answer counts for nothing: Qt can't abort it without a leak.
    look_up_ = -1;
    addresses_.clear();
    give_up_socket();
    events_ = {};
}

void SocketProbe::give_up_socket() {
    stop_watching();
    if (socket_ != -1) ::close(socket_);
    socket_ = -1;
}

void SocketProbe::watch(QSocketNotifier::Type direction, void (SocketProbe::*then)()) {
    stop_watching();
    notifier_ = new QSocketNotifier(socket_, direction, this);
    QObject::connect(notifier_, &QSocketNotifier::activated, this, then);
}

// This may run in the notifier's own signal, so it goes when control is back in the event loop.
void SocketProbe::stop_watching() {
    if (notifier_ == nullptr) return;
    notifier_->setEnabled(false);
    notifier_->deleteLater();
    notifier_ = nullptr;
}

// An event may close the probe, and with it take the events away.
void SocketProbe::report(const std::function<void()>& event) {
    const std::function<void()> kept = event;
    if (kept) kept();
}

void SocketProbe::looked_up(const QHostInfo& host) {
    if (host.lookupId() != look_up_) return;
    addresses_ = host.addresses();
    try_next_address();
}

void SocketProbe::try_next_address() {
    give_up_socket();
    while (!addresses_.isEmpty())
        if (start(addresses_.takeFirst())) return;
    report(events_.failed);
}

// False when the system refuses at once, which a watched socket would not tell.
bool SocketProbe::start(const QHostAddress& address) {
    AddressList list;
    if (!fill(list, address, port_)) return false;
    socket_ = ::socket(list.first->ai_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    if (socket_ == -1) return false;
    const int result = ::connect(socket_, list.first->ai_addr, list.first->ai_addrlen);
    if (result != 0 && errno != EINPROGRESS) {
        give_up_socket();
        return false;
    }
    watch(QSocketNotifier::Write, &SocketProbe::decided);
    return true;
}

// The attempt has been decided.
void SocketProbe::decided() {
    int error = 0;
    socklen_t size = sizeof error;
    if (::getsockopt(socket_, SOL_SOCKET, SO_ERROR, &error, &size) != 0) error = errno;
    if (error != 0) {
        try_next_address();
        return;
    }
    addresses_.clear();
    watch(QSocketNotifier::Read, &SocketProbe::read_on);
    report(events_.connected);
}

// What the peer says is of no interest; only whether it closes or resets.
void SocketProbe::read_on() {
    std::array<char, 4096> ignored;
    const ssize_t size = ::recv(socket_, ignored.data(), ignored.size(), 0);
    const bool nothing_yet = size < 0 && (errno == EAGAIN || errno == EINTR);
    if (size > 0 || nothing_yet) return;
    give_up_socket();
    if (size < 0) report(events_.failed);
}

}  // namespace tessarine
