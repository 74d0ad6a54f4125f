// The result of one query, handed out page by page (WS-Enumeration).
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "sample_network/hosts/sample_host.h"
#include "sample_network/hosts/wql.h"

namespace tessarine::sample {

/// The items of one answer, one after the other.
struct Page {
    std::string items;
    std::size_t count = 0;
    /// Nothing is left after this page.
    bool last = false;
};

class Enumeration {
  public:
    /// The items are made as they are asked for. `host` outlives the enumeration. Raises a
    /// SoapFault when the host refuses the query.
    Enumeration(const SampleHost& host, const WqlQuery& query);

    /// Up to `most_items` items that have no more than `most_units` UTF-16 units together. Raises a
    /// SoapFault when not even one item fits.
    Page take(std::size_t most_items, std::size_t most_units);

  private:
    std::function<std::optional<std::string>()> next_item_;
    std::optional<std::string> waiting_;
};

}  // namespace tessarine::sample
