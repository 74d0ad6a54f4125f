#include "sample_network/wire/enumeration.h"

#include <utility>

#include "sample_network/wire/item_text.h"
#include "sample_network/wire/soap_fault.h"

namespace tessarine::sample {
namespace {

std::function<std::optional<std::string>()> items_of(const SampleHost& host,
                                                     const WqlQuery& query) {
    if (query.queried == QueriedClass::TimeZone) {
        if (!host.time_zone) throw SoapFault{FaultKind::AccessDenied};
        return [item = std::optional{time_zone_item(*host.time_zone)}]() mutable {
            return std::exchange(item, std::nullopt);
        };
    }
    return [walk = host.history(), query]() -> std::optional<std::string> {
        while (const SampleEvent* event = walk())
            if (query.accepts(event->time_written)) return event_item(*event);
        return std::nullopt;
    };
}

}  // namespace

Enumeration::Enumeration(const SampleHost& host, const WqlQuery& query)
    : next_item_(items_of(host, query)), waiting_(next_item_()) {}

Page Enumeration::take(std::size_t most_items, std::size_t most_units) {
    Page page;
    while (waiting_ && page.count < most_items) {
        const std::size_t units = utf16_length(*waiting_);
        if (units > most_units) break;
        most_units -= units;
        page.items += *waiting_;
        ++page.count;
        waiting_ = next_item_();
    }
    page.last = !waiting_;
    if (page.count == 0 && !page.last) throw SoapFault{FaultKind::ItemTooLarge};
    return page;
}

}  // namespace tessarine::sample
