// Requests of WS-Management (DSP0226) and WS-Enumeration for records of a WMI class.
#pragma once

#include <chrono>
#include <string>

namespace tessarine {

struct SoapRequest {
    /// What the answer relates to.
    std::string message_id;
    /// The envelope, UTF-8.
    std::string text;
};

/// Makes the requests of one enumeration. They share all of their headers: hosts refuse a Pull that
/// asks for another envelope than its Enumerate.
class SoapRequests {
  public:
    /// `name_space` such as "root\cimv2"; a RuntimeError when it is none.
    SoapRequests(std::string url, const std::string& name_space,
                 std::chrono::seconds operation_timeout);

    /// `wql` in the console's code page.
    SoapRequest enumerate(const std::string& wql) const;
    /// `context` as the host's last answer gave it, UTF-8.
    SoapRequest pull(const std::string& context) const;
    SoapRequest release(const std::string& context) const;

  private:
    SoapRequest request(const std::string& action, const std::string& body) const;

    std::string url_;
    std::string resource_;
    std::chrono::seconds operation_timeout_;
};

}  // namespace tessarine
