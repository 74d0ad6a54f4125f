// One enumeration of a host: Enumerate, a Pull after another, and Release if it is left early.
#pragma once

#include <string>

#include "adapters/wsman/soap_answer.h"
#include "adapters/wsman/soap_channel.h"
#include "adapters/wsman/soap_request.h"

namespace tessarine {

class Enumeration {
  public:
    /// `channel` outlives the enumeration.
    Enumeration(SoapChannel& channel, SoapRequests requests);
    ~Enumeration();
    Enumeration(const Enumeration&) = delete;
    Enumeration& operator=(const Enumeration&) = delete;

    /// Begins it with a query. The answer's records are appended to `records`, here and in pull(),
    /// as append_event does. Raises a RuntimeError with the host's words when it answers with a
    /// fault; after an error the enumeration can't go on.
    void start(const std::string& wql, std::string& records);

    bool is_finished() const { return finished_; }

    /// Takes the host's next records, which may be none.
    void pull(std::string& records);

  private:
    SoapAnswer ask(const SoapRequest& request, std::string& records);
    SoapAnswer pull_patiently(std::string& records);
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
