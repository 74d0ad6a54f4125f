// The part of WQL that the hosts understand.
#pragma once

#include <optional>
#include <string_view>

#include "sample_network/hosts/event_time.h"

namespace tessarine::sample {

enum class QueriedClass { NTLogEvent, TimeZone };

/// A record meets the query when it was written at `written_from` or later, and before
/// `written_before`.
struct WqlQuery {
    QueriedClass queried = QueriedClass::NTLogEvent;
    std::optional<Instant> written_from;
    std::optional<Instant> written_before;

    bool accepts(Instant written) const {
        return (!written_from || written >= *written_from) &&
               (!written_before || written < *written_before);
    }
};

/// Reads SELECT * FROM class, for Win32_NTLogEvent with up to two conditions: WHERE TimeWritten >=
/// 'DMTF' AND TimeWritten < 'DMTF', the words in any case. Nothing for any other text.
std::optional<WqlQuery> parse_wql(std::string_view text);

}  // namespace tessarine::sample
