// One enumeration of a host: Enumerate, a Pull after another, and Release if it is left early.
#pragma once

#include <string>

#include "adapters/wsman/soap/soap_answer.h"
#include "adapters/wsman/soap/soap_channel.h"
#include "adapters/wsman/soap/soap_request.h"

namespace tessarine {

class Enumeration {
  public:
    /// `channel` outlives the enumeration.
    Enumeration(SoapChannel& channel, SoapRequests requests);
    ~Enumeration();
    Enumeration(const Enumeration&) = delete;
    Enumeration& operator=(const Enumeration&) = delete;

    /// Begins it with a query. The answer's items are read by `items`, here and in pull(). Raises a
    /// RuntimeError with the host's words when it answers with a fault; after an error the
    /// enumeration can't go on.
    void start(const std::string& wql, ItemReader& items);

    bool is_finished() const { return finished_; }

    /// Takes the host's next items, which may be none.
    void pull(ItemReader& items);

  private:
    SoapAnswer ask(const SoapRequest& request, ItemReader& items);
    SoapAnswer pull_patiently(ItemReader& items);
    void take(const SoapAnswer& answer);
    void release();

    SoapChannel& channel_;
    SoapRequests requests_;
    std::string context_;
    std::string cleaned_;  // The last answer; kept for its memory.
    int empty_pulls_ = 0;
    bool finished_ = false;
    bool intact_ = false;
};

}  // namespace tessarine
