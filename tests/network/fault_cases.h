// What the console says of each fault that a sample host can have.
#pragma once

#include <string_view>

namespace tessarine {

/// Whether the console can still tell the host that the query is of no more use.
enum class Parting { None, Release };

struct FaultCase {
    std::string_view fault;
    /// How the audit ends: a part of the error text.
    std::string_view error;
    Parting parting = Parting::None;
};

inline constexpr std::string_view kLost = "The connection to the host is lost";
inline constexpr std::string_view kSilent = "The host doesn't answer (timed out)";
inline constexpr std::string_view kNotHttp = "of the host doesn't speak HTTP";
inline constexpr std::string_view kTooLarge = "The host's answer is too large";
inline constexpr std::string_view kRefused = "The host refused the credentials";
inline constexpr std::string_view kElsewhere =
    "The host refers to another address, which is not followed (HTTP status 302)";
inline constexpr std::string_view kDenied = "Access is denied.";
inline constexpr std::string_view kTimedOut = "The operation has timed out.";
inline constexpr std::string_view kNoEnd = "The encrypted message is malformed: its end is missing";
inline constexpr std::string_view kChanged =
    "The message can't be decrypted: A token had an invalid Message Integrity Check (MIC)";
inline constexpr std::string_view kDocumentType =
    "The host's answer can't be read: it has a document type declaration";

/// Faults that end an audit at once.
inline constexpr FaultCase kFatalFaults[] = {
    {"closes", kLost},
    {"no-http", kNotHttp},
    {"not-found", "The host has no WS-Management service at this address"},
    {"unavailable", "The host's service is busy or stopped (HTTP status 503)"},
    {"redirect", kElsewhere},
    {"huge-header", kTooLarge},
    {"many-headers", kTooLarge},
    {"interim-flood", kTooLarge},
    {"gzip-bomb", kTooLarge},
    {"basic-only", "The host offers no integrated sign-in (Negotiate)"},
    {"refuses", kRefused},
    {"bad-token", "The host refused the sign-in: Invalid token was supplied"},
    {"endless-sign-in", kRefused},
    {"early-welcome", "The host ended the sign-in too early"},
    {"no-seal", "The host refused the sign-in: A required Negotiate flag was not provided"},
    {"denied", kDenied},
    {"quota", "The user has reached the maximum number of concurrent operations."},
    {"item-too-large", "An item is larger than the envelope may be.", Parting::Release},
    {"denied-later", kDenied, Parting::Release},
    {"context-lost", "The enumeration context is not valid", Parting::Release},
    {"timed-out-gone", kTimedOut, Parting::Release},
    {"always-timed-out", kTimedOut, Parting::Release},
    {"drop-at-query", kLost},
    {"drop", kLost},
    {"drop-before-body", kLost},
    {"drop-within-body", kLost},
    {"endless", "The host sends more records than can be kept", Parting::Release},
    {"endless-empty", "The host sends no more records", Parting::Release},
    {"flood", kTooLarge},
    {"chunk-flood", kTooLarge},
    {"short-length", kNoEnd},
    {"gzip", "The host's answer is compressed, which nobody asked for"},
    {"new-sign-in", "The host asks for a new sign-in in mid-session"},
    {"redirect-later", kElsewhere},
    {"garbage", kNotHttp},
    {"wrong-length", "The encrypted message is malformed: its length is wrong"},
    {"long-seal", "The encrypted message is malformed: its seal is longer than its sealed part"},
    {"no-end", kNoEnd},
    {"changed-byte", kChanged},
    {"replay", kChanged},
    {"unsealed", "The host's answer is not encrypted (HTTP status 200)"},
    {"malformed", "The host's answer can't be read: mismatched tag", Parting::Release},
    {"doctype", kDocumentType, Parting::Release},
    {"entity-bomb", kDocumentType, Parting::Release},
    {"deep", "The host's answer can't be read: it is nested too deeply", Parting::Release},
    {"wide-tag", "The host's answer can't be read: it has a tag that is too long",
     Parting::Release},
    {"large-item", kTooLarge},
    {"long-text", "The host sent a text that is too long", Parting::Release},
    {"utf-16", "The host's answer can't be read: not well-formed", Parting::Release},
    {"forged-time", "The host sent a time that can't be read: \"x GOODHOST Audit ok\"",
     Parting::Release},
    {"other-answer", "The host's answer belongs to another request", Parting::Release},
    {"other-kind", "The host's answer is of an unknown kind", Parting::Release},
};

/// Faults that end an audit when the host has been silent for too long.
inline constexpr FaultCase kSilentFaults[] = {
    {"silent", kSilent},  {"hangs", kSilent},       {"stalls", kSilent},
    {"trickle", kSilent}, {"long-length", kSilent},
};

/// Faults that an audit gets over, and what they put before the other lines of the System log.
struct HarmlessCase {
    std::string_view fault;
    std::string_view lines = {};
};

inline constexpr HarmlessCase kHarmlessFaults[] = {
    {"timed-out"},
    {"slow"},
    {"many-items"},
    {"latin-1", "Information|5/17/2024|1:00:00 AM|Fault|4711|N/A|FAULT|M?nchen\r\n"},
    // As bytes, half a pair and what is no character take three each.
    {"illegal-characters",
     "Information|5/17/2024|1:00:00 AM|Fault|4711|N/A|FAULT|[???]\r\n"
     "Information|5/17/2024|1:00:00 AM|Fault|4711|N/A|FAULT|[?]\r\n"
     "Information|5/17/2024|1:00:00 AM|Fault|4711|N/A|FAULT|[???]\r\n"
     "Information|5/17/2024|1:00:00 AM|Fault|4711|N/A|FAULT|[?]\r\n"
     "Information|5/17/2024|1:00:00 AM|Fault|4711|N/A|FAULT|[?]\r\n"
     "Information|5/17/2024|1:00:00 AM|Fault|4711|N/A|FAULT|[?]\r\n"},
    {"raw-line-ends", "Information|5/17/2024|1:00:00 AM|Fault|4711|N/A|FAULT|one~two\nthree\r\n"},
    {"bare-item", "|5/17/2024|1:00:00 AM|||N/A||\r\n"},
    {"old-limits"},
    {"all-at-once"},
};

}  // namespace tessarine
