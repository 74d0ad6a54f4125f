// How a list keeps its rows; of use to the list control alone.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/list/list_control.h"

namespace tessarine {

/// A row whose cells stand in one kept text: 32 bytes.
struct ListControl::CompactRow {
    static constexpr std::uint32_t kNoOwnRow = 0xFFFFFFFF;

    const char* text = nullptr;
    std::array<std::uint16_t, RecordText::kFields - 1> head_ends{};
    std::uint8_t small_icon : 6 = 0;
    std::uint8_t checked : 1 = 0;
    std::uint8_t selected : 1 = 0;
    std::uint8_t red_columns = 0;  // bit i: column i is red
    std::uint32_t end = 0;
    std::uint32_t own_row = kNoOwnRow;
};

/// The cells of a row that can't be compact.
struct ListControl::OwnRow {
    struct Cell {
        std::string text;
        std::uint32_t colour = kDefaultColour;
        int report_icon = 0;
    };
    std::vector<Cell> cells;
};

}  // namespace tessarine
