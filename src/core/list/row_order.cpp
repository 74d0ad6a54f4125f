#include "core/list/row_order.h"

#include <algorithm>
#include <numeric>

namespace tessarine {
namespace {

constexpr std::size_t kChunkRows = 1024;

}  // namespace

void RowOrder::clear() {
    size_ = 0;
    plain_ = true;
    chunks_.clear();
    starts_.clear();
}

void RowOrder::append(RowNumber row) {
    if (plain_ && row != size_) write_out();
    if (!plain_) {
        if (chunks_.empty() || chunks_.back().size() == kChunkRows) chunks_.emplace_back();
        chunks_.back().push_back(row);
    }
    ++size_;
}

std::size_t RowOrder::insert_sorted(RowNumber row, const Before& before) {
    write_out();
    if (chunks_.empty()) chunks_.emplace_back();
    // The last chunk whose first row may stand before the new one.
    auto after = std::upper_bound(
        chunks_.begin(), chunks_.end(), row,
        [&](RowNumber added, const Chunk& c) { return !c.empty() && before(added, c.front()); });
    const auto index =
        static_cast<std::size_t>(after == chunks_.begin() ? 0 : after - chunks_.begin() - 1);
    Chunk& chunk = chunks_[index];
    const auto offset = static_cast<std::size_t>(
        std::upper_bound(chunk.begin(), chunk.end(), row, before) - chunk.begin());
    chunk.insert(chunk.begin() + static_cast<std::ptrdiff_t>(offset), row);
    std::size_t position = offset;
    for (std::size_t i = 0; i < index; ++i) position += chunks_[i].size();
    ++size_;
    starts_.resize(std::min(starts_.size(), index + 1));
    split_if_full(index);
    return position;
}

void RowOrder::remove(std::size_t position) {
    write_out();
    const Place place = place_of(position);
    Chunk& chunk = chunks_[place.chunk];
    chunk.erase(chunk.begin() + static_cast<std::ptrdiff_t>(place.offset));
    if (chunk.empty()) chunks_.erase(chunks_.begin() + static_cast<std::ptrdiff_t>(place.chunk));
    starts_.resize(std::min(starts_.size(), place.chunk));
    --size_;
}

std::vector<RowOrder::RowNumber> RowOrder::rows() const {
    std::vector<RowNumber> rows(size_);
    if (plain_) std::iota(rows.begin(), rows.end(), RowNumber{0});
    auto next = rows.begin();
    for (const Chunk& chunk : chunks_) next = std::copy(chunk.begin(), chunk.end(), next);
    return rows;
}

void RowOrder::arrange(const std::vector<RowNumber>& rows) {
    plain_ = false;
    chunks_.clear();
    starts_.clear();
    // Chunks are left half full, so that the next insertions split none of them.
    for (std::size_t i = 0; i < rows.size(); i += kChunkRows / 2) {
        const std::size_t end = std::min(rows.size(), i + kChunkRows / 2);
        chunks_.emplace_back(rows.begin() + static_cast<std::ptrdiff_t>(i),
                             rows.begin() + static_cast<std::ptrdiff_t>(end));
    }
}

RowOrder::RowNumber RowOrder::find(std::size_t position) const {
    if (position + chunks_.back().size() >= size_)  // the last row is asked for most of all
        return chunks_.back()[position + chunks_.back().size() - size_];
    const Place place = place_of(position);
    return chunks_[place.chunk][place.offset];
}

RowOrder::Place RowOrder::place_of(std::size_t position) const {
    if (starts_.empty()) starts_.push_back(0);
    while (starts_.size() < chunks_.size() && starts_.back() <= position)
        starts_.push_back(starts_.back() + chunks_[starts_.size() - 1].size());
    const auto after = std::upper_bound(starts_.begin(), starts_.end(), position);
    const auto chunk = static_cast<std::size_t>(after - starts_.begin() - 1);
    return {chunk, position - starts_[chunk]};
}

void RowOrder::write_out() {
    if (plain_) arrange(rows());
}

void RowOrder::split_if_full(std::size_t chunk) {
    if (chunks_[chunk].size() < kChunkRows) return;
    const auto middle = chunks_[chunk].begin() + kChunkRows / 2;
    Chunk upper(middle, chunks_[chunk].end());
    chunks_[chunk].erase(middle, chunks_[chunk].end());
    chunks_.insert(chunks_.begin() + static_cast<std::ptrdiff_t>(chunk) + 1, std::move(upper));
}

}  // namespace tessarine
