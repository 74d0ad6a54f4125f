// The order in which a list shows its rows.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace tessarine {

/// A sequence of row numbers in chunks of at most 1,024, so that a row can be put in or taken out
/// anywhere without moving all others. While rows stand in the order of their numbers and none is
/// missing, no sequence is kept at all. Positions are counted from 0.
class RowOrder {
  public:
    using RowNumber = std::uint32_t;
    /// Whether `left` must stand before `right`.
    using Before = std::function<bool(RowNumber left, RowNumber right)>;

    std::size_t size() const { return size_; }
    RowNumber at(std::size_t position) const {
        return plain_ ? static_cast<RowNumber>(position) : find(position);
    }

    void clear();
    void append(RowNumber row);
    /// Puts `row` after all rows that need not follow it; returns its position. The rows
    /// must be in the order that `before` tells.
    std::size_t insert_sorted(RowNumber row, const Before& before);
    void remove(std::size_t position);
    /// All rows in their order.
    std::vector<RowNumber> rows() const;
    /// Brings the same rows into another order.
    void arrange(const std::vector<RowNumber>& rows);

  private:
    using Chunk = std::vector<RowNumber>;
    struct Place {
        std::size_t chunk;
        std::size_t offset;
    };

    RowNumber find(std::size_t position) const;
    Place place_of(std::size_t position) const;
    void write_out();
    void split_if_full(std::size_t chunk);

    std::size_t size_ = 0;
    bool plain_ = true;
    std::vector<Chunk> chunks_;
    // First position of each chunk as far as they are known to be right.
    mutable std::vector<std::size_t> starts_;
};

}  // namespace tessarine
