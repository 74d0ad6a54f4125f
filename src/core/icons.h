// Numbers in the console's image lists.
#pragma once

namespace tessarine {

/// Of the host list and the tables.
inline constexpr int kNoIcon = 0;
inline constexpr int kIconHost = 1;
inline constexpr int kIconWarning = 2;
inline constexpr int kIconInformation = 3;
inline constexpr int kIconError = 4;
inline constexpr int kIconAuditFailure = 5;
inline constexpr int kIconAuditSuccess = 6;
inline constexpr int kIconResultOk = 7;
inline constexpr int kIconResultError = 8;

/// Of the tabs of TabStrip2: as usual, and with an alert in its log.
inline constexpr int kTabPlain = 1;
inline constexpr int kTabAlert = 2;

}  // namespace tessarine
