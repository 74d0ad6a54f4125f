#include "sample_network/faults/fault_injector.h"

namespace tessarine::sample {

void FaultInjector::begin(Moment moment) {
    if (host_.on_step) host_.on_step(moment);
    if (moment == Moment::Pull) ++pulls_;
    acts_ = planned_.fault != nullptr && acts_at(moment);
    acted_ = acted_ || acts_;
}

bool FaultInjector::acts_at(Moment moment) const {
    const Fault& fault = *planned_.fault;
    if (moment != fault.moment || (acted_ && fault.repeat == Repeat::Never)) return false;
    return moment != Moment::Pull || pulls_ >= planned_.pull;
}

void FaultInjector::change_message(std::string& envelope) const {
    if (acts_ && planned_.fault->message != nullptr) planned_.fault->message(envelope);
}

void FaultInjector::change_sealed(std::string_view plain, HttpAnswer& answer) {
    const std::string previous = std::exchange(previous_body_, answer.body);
    if (acts_ && planned_.fault->sealed != nullptr)
        planned_.fault->sealed({plain, previous, answer});
}

void FaultInjector::change_http(std::string& text) const {
    if (acts_ && planned_.fault->http != nullptr) planned_.fault->http(text);
}

void FaultInjector::write(Connection& connection, std::string_view text) const {
    if (acts_ && planned_.fault->wire != nullptr)
        planned_.fault->wire(connection, text, planned_.wait);
    else
        connection.write(text);
}

}  // namespace tessarine::sample
