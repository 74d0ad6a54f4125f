// What can be wrong with a host: one table, each fault with the place where it acts.
#pragma once

#include <chrono>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "sample_network/hosts/moment.h"
#include "sample_network/hosts/sample_host.h"
#include "sample_network/wire/connection_server.h"
#include "sample_network/wire/http_exchange.h"
#include "sample_network/wire/soap_fault.h"

namespace tessarine::sample {

enum class Repeat { Never, Always };

/// A sealed answer on its way out: `http` carries `plain`, and carried `previous_body` before.
struct SealedAnswer {
    std::string_view plain;
    std::string_view previous_body;
    HttpAnswer& http;
};

/// Each function is one place of the way that an answer takes, in their order; most faults have but
/// one. They change what they are given, or write it in their own way.
struct Fault {
    std::string_view name;
    std::string_view description;
    Moment moment = Moment::Pull;
    /// The first Pull at which it acts, counted from 1.
    int pull = 2;
    /// How long the host waits before it answers, where it does.
    std::chrono::milliseconds wait{0};
    Repeat repeat = Repeat::Never;

    /// Acts on the host itself, before all answers.
    void (*host)(SampleHost& host) = nullptr;
    /// Answered instead of what was asked for.
    std::optional<FaultKind> instead = std::nullopt;
    /// All enumerations are gone with it.
    bool forgets = false;
    void (*message)(std::string& envelope) = nullptr;
    void (*sealed)(SealedAnswer answer) = nullptr;
    void (*http)(std::string& text) = nullptr;
    void (*wire)(Connection& connection, std::string_view text,
                 std::chrono::milliseconds wait) = nullptr;
};

std::span<const Fault> all_faults();

/// Null for an unknown name.
const Fault* find_fault(std::string_view name);

}  // namespace tessarine::sample
