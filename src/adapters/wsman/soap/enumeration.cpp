#include "adapters/wsman/soap/enumeration.h"

#include <utility>

#include "adapters/wsman/basics/ascii.h"
#include "adapters/wsman/basics/failure.h"
#include "adapters/wsman/basics/limits.h"
#include "adapters/wsman/soap/text_scrub.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

[[noreturn]] void fail_with(const SoapFault& fault) {
    if (!fault.text.empty()) raise_failure(fault.text);
    raise_failure("The host answered with fault " + std::to_string(fault.number) + " " +
                  fault.code);
}

}  // namespace

Enumeration::Enumeration(SoapChannel& channel, SoapRequests requests)
    : channel_(channel), requests_(std::move(requests)) {}

// Hosts allow a user a few enumerations at once, and keep an abandoned one for minutes.
Enumeration::~Enumeration() {
    if (!finished_ && !context_.empty() && channel_.is_usable()) release();
}

void Enumeration::release() {
    try {
        channel_.send_parting(requests_.release(context_).text);
    } catch (const RuntimeError&) {
        context_.clear();  // The host will end it by itself, in its own time.
    }
}

void Enumeration::start(const std::string& wql, ItemReader& items) {
    const SoapAnswer answer = ask(requests_.enumerate(wql), items);
    if (answer.fault) fail_with(*answer.fault);
    take(answer);
    intact_ = true;
}

void Enumeration::pull(ItemReader& items) {
    if (!std::exchange(intact_, false)) raise_failure("The query has ended with an error");
    const SoapAnswer answer = pull_patiently(items);
    if (answer.fault) fail_with(*answer.fault);
    take(answer);
    empty_pulls_ = answer.item_count == 0 ? empty_pulls_ + 1 : 0;
    if (!finished_ && empty_pulls_ > limits::kEmptyPulls)
        raise_failure("The host sends no more records");
    intact_ = true;
}

// A host that found nothing in its time limit may go on from there, once; some have forgotten the
// enumeration by then, which must not hide the first fault.
SoapAnswer Enumeration::pull_patiently(ItemReader& items) {
    SoapAnswer answer = ask(requests_.pull(context_), items);
    if (!answer.fault || !answer.fault->is(kFaultTimedOut, "TimedOut")) return answer;
    SoapAnswer second = ask(requests_.pull(context_), items);
    const bool forgotten =
        second.fault && second.fault->is(kFaultInvalidContext, "InvalidEnumerationContext");
    return forgotten ? answer : second;
}

SoapAnswer Enumeration::ask(const SoapRequest& request, ItemReader& items) {
    scrub(channel_.exchange(request.text), cleaned_);
    SoapAnswer answer = read_soap_answer(cleaned_, items);
    // A host that could not read the request can't tell which one its fault is about.
    const bool unrelated_fault = answer.fault && answer.relates_to.empty();
    if (!unrelated_fault && !same_ascii_text(answer.relates_to, request.message_id))
        raise_failure("The host's answer belongs to another request");
    return answer;
}

void Enumeration::take(const SoapAnswer& answer) {
    context_ = answer.context;
    finished_ = answer.ends_sequence || context_.empty();
}

}  // namespace tessarine
