// The result of an audit on a host's row.
#pragma once

#include "core/list/list_control.h"

namespace tessarine {

inline constexpr int kIconAuditOk = 7;
inline constexpr int kIconAuditFailed = 8;

inline void mark_result(ListControl& list, int row, bool failed) {
    list.row(row).set_report_icon(1, failed ? kIconAuditFailed : kIconAuditOk);
}

}  // namespace tessarine
