#include "sample_network/wsman_session.h"

#include <strings.h>

#include <algorithm>

#include "sample_network/wire/soap_fault.h"
#include "sample_network/wire/soap_text.h"

namespace tessarine::sample {
namespace {

constexpr const char* kAllClasses = "http://schemas.microsoft.com/wbem/wsman/1/wmi/root/cimv2/*";
constexpr std::size_t kMostEnumerations = 15;
constexpr std::size_t kSmallestEnvelope = 8'192;

// A host counts an envelope in UTF-16, and lowers a limit above its own in silence.
std::size_t units_for_items(const HostLimits& limits, std::size_t max_envelope_size) {
    return std::min(max_envelope_size, limits.envelope) / 2 - kEnvelopeReserve;
}

Moment moment_of(const SoapRequest& request) {
    if (request.action == SoapAction::Pull) return Moment::Pull;
    if (request.action == SoapAction::Release) return Moment::Release;
    const auto query = parse_wql(request.filter);
    const bool for_records = query && query->queried == QueriedClass::NTLogEvent;
    return for_records ? Moment::Enumerate : Moment::Other;
}

}  // namespace

SoapAnswer WsmanSession::answer(std::string_view request_text) {
    const auto request = parse_soap_request(request_text);
    faults_.begin(request ? moment_of(*request) : Moment::Other);
    if (!request || request->max_envelope_size < kSmallestEnvelope)
        return {500, fault_answer("", FaultKind::RequestNotUnderstood, host_.name)};
    return answer(*request);
}

SoapAnswer WsmanSession::answer(const SoapRequest& request) try {
    fail_as_planned();
    std::string text = answer_text(request);
    faults_.change_message(text);
    return {200, std::move(text)};
} catch (const SoapFault& fault) {
    return {500, fault_answer(request.message_id, fault.kind, host_.name)};
}

std::string WsmanSession::answer_text(const SoapRequest& request) {
    switch (request.action) {
        case SoapAction::Enumerate:
            return enumerate(request);
        case SoapAction::Pull:
            return pull(request);
        case SoapAction::Release:
            break;
    }
    return release(request);
}

void WsmanSession::fail_as_planned() {
    const Fault* fault = faults_.acting();
    if (fault == nullptr || !fault->instead) return;
    if (fault->forgets) enumerations_.clear();
    throw SoapFault{*fault->instead};
}

std::string WsmanSession::enumerate(const SoapRequest& request) {
    const auto query = parse_wql(request.filter);
    if (!query || strcasecmp(request.resource_uri.c_str(), kAllClasses) != 0)
        throw SoapFault{FaultKind::QueryNotUnderstood};
    if (enumerations_.size() >= kMostEnumerations) throw SoapFault{FaultKind::TooManyEnumerations};
    OpenEnumeration open{Enumeration(host_, *query), request.max_envelope_size};
    Page page;
    if (request.optimize)
        page = open.enumeration.take(host_.limits.first_elements,
                                     units_for_items(host_.limits, request.max_envelope_size));
    const std::string context = page.last ? "" : keep(std::move(open));
    return enumerate_answer(request.message_id, context, page);
}

std::string WsmanSession::pull(const SoapRequest& request) {
    const auto found = find(request);
    if (found->second.max_envelope_size != request.max_envelope_size)
        throw SoapFault{FaultKind::PullDiffers};
    OpenEnumeration open = std::move(found->second);
    enumerations_.erase(found);
    const Page page = open.enumeration.take(std::min(request.max_elements, host_.limits.elements),
                                            units_for_items(host_.limits, open.max_envelope_size));
    const std::string context = page.last ? "" : keep(std::move(open));
    return pull_answer(request.message_id, context, page);
}

std::string WsmanSession::release(const SoapRequest& request) {
    enumerations_.erase(find(request));
    return release_answer(request.message_id);
}

// Every answer has a new context, and the one before is gone.
std::string WsmanSession::keep(OpenEnumeration&& open) {
    std::string context = new_uuid();
    enumerations_.emplace(context, std::move(open));
    return context;
}

WsmanSession::Enumerations::iterator WsmanSession::find(const SoapRequest& request) {
    const auto found = enumerations_.find(request.context);
    if (found == enumerations_.end()) throw SoapFault{FaultKind::UnknownContext};
    return found;
}

}  // namespace tessarine::sample
