#include "analysis/log_line_count.h"

#include <algorithm>
#include <cstring>
#include <limits>

#include "core/text.h"
#include "store/event_record.h"

namespace tessarine {
namespace {

constexpr auto kSource = static_cast<std::size_t>(Field::Source);
constexpr auto kEvent = static_cast<std::size_t>(Field::Event);
// Longer than any word of a type: what comes after it makes no difference.
constexpr std::size_t kLongestWord = 24;
constexpr std::size_t kMostSeen = 16;

using Head = std::array<std::string_view, kEvent + 1>;

// Splits off the fields up to the code, and tells how many of them there are. The rest of a line,
// most of it, is not looked at.
std::size_t split_head(std::string_view line, Head& fields) {
    std::size_t count = 0;
    while (count < fields.size()) {
        const auto* bar = static_cast<const char*>(std::memchr(line.data(), '|', line.size()));
        const std::size_t length =
            bar != nullptr ? static_cast<std::size_t>(bar - line.data()) : line.size();
        fields[count++] = line.substr(0, length);
        if (bar == nullptr) break;
        line.remove_prefix(length + 1);
    }
    return count;
}

bool starts_with(std::string_view text, std::string_view start) {
    return same_text(text.substr(0, start.size()), start);
}

}  // namespace

// KEEP(lines-without-a-code-count-for-all-codes): passing over such a line would leave out the 1
// that a comparison with a missing code, which counts as passed, adds on each row.
// KEEP(unknown-types-take-the-icon-before): no icon for such a line would leave its row without the
// picture of the line before.
void LogLineCount::take_line(std::string_view line) {
    Head fields;
    const std::size_t count = split_head(line, fields);
    const SeenType& type = seen_type(fields[0]);
    if (type.icon != 0) icon_ = type.icon;
    ++starts_[type.start];
    if (count > kEvent)
        codes_.count(fields[kEvent], fields[kSource], icon_);
    else
        codes_.count_all();
}

std::vector<std::int64_t> LogLineCount::starts() const {
    constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
    std::vector<std::int64_t> counted;
    for (std::size_t i = 0; i < types_.size(); ++i) counted.push_back(std::min(starts_[i], kMost));
    return counted;
}

// A store spells its types in few ways, so most words are found among those that came before.
const LogLineCount::SeenType& LogLineCount::seen_type(std::string_view word) {
    word = word.substr(0, kLongestWord);
    for (const SeenType& seen : seen_)
        if (seen.word == word) return seen;
    if (seen_.size() == kMostSeen) seen_.pop_back();
    return seen_.emplace_back(classified(word));
}

// No start has a "|" in it, so the start of a line is that of its type.
// KEEP(charts-go-by-first-letters): one test for both would take "Infos" out of the chart, or give
// it an icon.
LogLineCount::SeenType LogLineCount::classified(std::string_view word) const {
    SeenType type{std::string(word), 0, kMostTypes};
    for (std::size_t i = 0; i < types_.size(); ++i) {
        const auto& [whole, starts, icon] = types_[i];
        if (same_text(word, whole.english) || same_text(word, whole.german)) type.icon = icon;
        if (starts_with(word, starts.english) || starts_with(word, starts.german)) type.start = i;
    }
    return type;
}

}  // namespace tessarine
