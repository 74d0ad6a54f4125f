// Walks over the rows of the host list.
#pragma once

#include "core/counter16.h"
#include "core/list/list_control.h"

namespace tessarine {

/// How many rows a walk over the host list has before it; raises "Overflow" above 32,767.
// KEEP(long-host-lists-fail): a wider number would walk over a list that is to end in an overflow.
inline int host_rows(const ListControl& hosts) {
    return count16(hosts.count());
}

/// How many hosts are selected, by such a walk.
inline int selected_hosts(const ListControl& hosts) {
    return host_rows(hosts) == 0 ? 0 : hosts.selected_count();
}

}  // namespace tessarine
