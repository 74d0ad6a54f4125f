// The result of an audit on a host's row.
#pragma once

#include "core/icons.h"
#include "core/list/list_control.h"

namespace tessarine {

inline void mark_result(ListControl& list, int row, bool failed) {
    list.row(row).set_report_icon(1, failed ? kIconResultError : kIconResultOk);
}

}  // namespace tessarine
