#include "sample_network/faults/fault_wire.h"

#include <string>

namespace tessarine::sample::faults {
namespace {

constexpr std::chrono::minutes kForever{10};
constexpr std::size_t kBlock = std::size_t{64} * 1024;

std::size_t body_of(std::string_view text) {
    return text.find("\r\n\r\n") + 4;
}

std::size_t middle_of_body(std::string_view text) {
    return (body_of(text) + text.size()) / 2;
}

[[noreturn]] void end() {
    throw ConnectionEnded("as the fault wants it");
}

}  // namespace

void write_late(Connection& connection, std::string_view text, Milliseconds wait) {
    connection.pause(wait);
    connection.write(text);
}

void say_nothing(Connection& connection, std::string_view, Milliseconds) {
    connection.pause(kForever);
    end();
}

void hang_up(Connection&, std::string_view, Milliseconds) {
    end();
}

void hang_up_before_body(Connection& connection, std::string_view text, Milliseconds) {
    connection.write(text.substr(0, body_of(text)));
    end();
}

void hang_up_within_body(Connection& connection, std::string_view text, Milliseconds) {
    connection.write(text.substr(0, middle_of_body(text)));
    end();
}

void stop_within_body(Connection& connection, std::string_view text, Milliseconds wait) {
    connection.write(text.substr(0, middle_of_body(text)));
    say_nothing(connection, text, wait);
}

void trickle(Connection& connection, std::string_view text, Milliseconds) {
    connection.write(text.substr(0, body_of(text)));
    for (std::size_t i = body_of(text); i < text.size(); ++i) {
        connection.write(text.substr(i, 1));
        connection.pause(std::chrono::seconds(1));
    }
}

// Ten gigabytes, as announced.
void flood(Connection& connection, std::string_view, Milliseconds) {
    constexpr std::size_t kLength = std::size_t{10} << 30;
    connection.write("HTTP/1.1 200 OK\r\nContent-Length: " + std::to_string(kLength) + "\r\n\r\n");
    const std::string block(kBlock, 'x');
    for (std::size_t written = 0; written < kLength; written += kBlock) connection.write(block);
}

void flood_in_chunks(Connection& connection, std::string_view, Milliseconds) {
    connection.write("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n");
    const std::string chunk = "10000\r\n" + std::string(kBlock, 'x') + "\r\n";
    while (true) connection.write(chunk);
}

void flood_with_interim_answers(Connection& connection, std::string_view, Milliseconds) {
    while (true) connection.write("HTTP/1.1 100 Continue\r\n\r\n");
}

}  // namespace tessarine::sample::faults
