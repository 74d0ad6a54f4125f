// What the fault of a host, if it has one, does to one connection.
#pragma once

#include <string>
#include <string_view>

#include "sample_network/faults/fault.h"

namespace tessarine::sample {

class FaultInjector {
  public:
    /// `host` outlives the object.
    explicit FaultInjector(const SampleHost& host)
        : host_(host), planned_(host.fault.value_or(PlannedFault{})) {}

    /// Another step begins; what follows is about it.
    void begin(Moment moment);

    /// Null while nothing goes wrong.
    const Fault* acting() const { return acts_ ? planned_.fault : nullptr; }

    void change_message(std::string& envelope) const;
    void change_sealed(std::string_view plain, HttpAnswer& answer);
    void change_http(std::string& text) const;

    /// Sends an answer, or what comes in its place; at a step without an answer (`text` empty)
    /// sends only the latter.
    void write(Connection& connection, std::string_view text) const;

  private:
    bool acts_at(Moment moment) const;

    const SampleHost& host_;
    PlannedFault planned_;
    int pulls_ = 0;
    bool acts_ = false;
    bool acted_ = false;
    std::string previous_body_;
};

}  // namespace tessarine::sample
