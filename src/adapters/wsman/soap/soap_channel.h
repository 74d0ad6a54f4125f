// Where SOAP requests go and answers come from.
#pragma once

#include <string>
#include <string_view>

namespace tessarine {

class SoapChannel {
  public:
    virtual ~SoapChannel() = default;

    /// Sends a request (UTF-8) and gives the host's answer, which may be a fault. Raises a
    /// RuntimeError when there is none.
    virtual std::string exchange(std::string_view soap) = 0;

    /// The same for a request whose answer is of no interest.
    virtual void send_parting(std::string_view soap) = 0;

    /// False once an exchange has failed: nothing can be sent any more.
    virtual bool is_usable() const = 0;
};

}  // namespace tessarine
