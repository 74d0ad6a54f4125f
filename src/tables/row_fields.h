// What stands in which column of a table.
#pragma once

#include <string_view>

#include "core/list/list_control.h"
#include "store/event_record.h"

namespace tessarine {

/// A field of the record that an event table's row shows. Raises "Subscript out of range" where the
/// row is too short for it.
inline std::string_view field(const ListControl::ConstRow& row, Field name) {
    return name == Field::Type ? row.text() : row.sub_item(static_cast<int>(name));
}

/// Sub-items of an analysis table; its rows' own texts are event codes.
inline constexpr int kInstances = 1;
inline constexpr int kSource = 2;

}  // namespace tessarine
