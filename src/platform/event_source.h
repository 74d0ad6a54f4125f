// Where events come from: a host's management service and the class Win32_NTLogEvent.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace tessarine {

/// Name and password of the alternate user, 8-bit code page, password in the clear.
/// The name has one of the forms DOMAIN\user, HOST\user, .\user, user, user@realm.
struct Credentials {
    std::string user;
    /// Stays where its owner keeps it: no copy is left behind.
    std::string_view password;
};

/// The eight properties of one Win32_NTLogEvent, in the console's 8-bit code page; a null value has
/// no text. `TimeGenerated` is a DMTF date-time text (DSP0004, "Datetime type"):
/// yyyymmddHHMMSS.ffffff+OOO, what the host's clock showed and its offset from UTC in minutes. The
/// views hold until the next call on the result that gave them.
struct EventProperties {
    using Property = std::optional<std::string_view>;
    Property LogFile, Type, TimeGenerated, SourceName, EventCode, ComputerName, Message, User;
};

/// The result of one query, to be walked any number of times, each time in the host's order and
/// with the same records. Every call may raise a RuntimeError that names the cause in words.
class EventResult {
  public:
    virtual ~EventResult() = default;

    /// Goes to the front of the first record. A new result stands there already.
    virtual void start_over() = 0;

    /// Fills `event` with the next record; false after the last one.
    virtual bool next(EventProperties& event) = 0;
};

/// WBEM authentication level "packet privacy": every message is sealed.
inline constexpr int kAuthenticationPacketPrivacy = 6;
/// WBEM impersonation level "impersonate": the host may act as the user, but not towards others.
inline constexpr int kImpersonationImpersonate = 3;

/// A connection to one host's management service.
class EventService {
  public:
    virtual ~EventService() = default;

    /// The two levels are demands: a source that can't keep them raises a RuntimeError.
    virtual void set_authentication_level(int level) = 0;
    virtual void set_impersonation_level(int level) = 0;

    /// `query` is WQL. The result may not outlive the service.
    virtual std::unique_ptr<EventResult> exec_query(const std::string& query) = 0;
};

class EventSource {
  public:
    virtual ~EventSource() = default;

    /// Connects to `host` (8-bit code page, as the caller was given it) and `name_space`, such as
    /// "root\cimv2"; without credentials as the user who runs the console. Raises a RuntimeError
    /// whose description says in words why there is no connection.
    virtual std::unique_ptr<EventService> connect_server(
        const std::string& host, const std::string& name_space,
        const std::optional<Credentials>& credentials) = 0;
};

}  // namespace tessarine
