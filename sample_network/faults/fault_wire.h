// Faults in how an answer's bytes are written.
#pragma once

#include <chrono>
#include <string_view>

#include "sample_network/wire/connection_server.h"

namespace tessarine::sample::faults {

using Milliseconds = std::chrono::milliseconds;

void write_late(Connection& connection, std::string_view text, Milliseconds wait);
void say_nothing(Connection& connection, std::string_view text, Milliseconds wait);
void hang_up(Connection& connection, std::string_view text, Milliseconds wait);
void hang_up_before_body(Connection& connection, std::string_view text, Milliseconds wait);
void hang_up_within_body(Connection& connection, std::string_view text, Milliseconds wait);
void stop_within_body(Connection& connection, std::string_view text, Milliseconds wait);
void trickle(Connection& connection, std::string_view text, Milliseconds wait);
void flood(Connection& connection, std::string_view text, Milliseconds wait);
void flood_in_chunks(Connection& connection, std::string_view text, Milliseconds wait);
void flood_with_interim_answers(Connection& connection, std::string_view text, Milliseconds wait);

}  // namespace tessarine::sample::faults
