#include "bench/log_lines.h"

#include <algorithm>
#include <array>

namespace tessarine::bench {
namespace {

constexpr int kSecondsOfADay = 86'400;
constexpr std::uint32_t kLongestPause = 120;         // seconds
constexpr std::uint32_t kLargestWeight = 1'000'000;  // of the most frequent code

constexpr std::array<std::string_view, 8> kSources = {
    "Security", "Service Control Manager", "EventLog", "W32Time", "Print", "MSSQLSERVER",
    "DCOM",     "Application Hang"};
constexpr std::array<std::string_view, 6> kUsers = {
    "N/A", "NT AUTHORITY\\SYSTEM", "NT AUTHORITY\\NETWORK SERVICE",
    "N/A", "EXAMPLE\\backup",      "EXAMPLE\\m.keller"};

// Types in the order of how rare they are, with the share of a hundred at which each ends.
struct TypeShare {
    TypeWord word;
    std::uint32_t end;
};
constexpr std::array kSecurityShares = {TypeShare{kAuditFailure, 10},
                                        TypeShare{kAuditSuccess, 100}};
constexpr std::array kPlainShares = {TypeShare{kError, 8}, TypeShare{kWarning, 20},
                                     TypeShare{kInformation, 100}};

template <class Shares>
const TypeWord& drawn_from(const Shares& shares, std::uint32_t draw) {
    return std::find_if(shares.begin(), shares.end(),
                        [draw](const TypeShare& share) { return draw < share.end; })
        ->word;
}

template <class Texts>
std::string_view any_of(const Texts& texts, RandomNumbers& random) {
    return texts[random.below(static_cast<std::uint32_t>(texts.size()))];
}

}  // namespace

LogLines::LogLines(EventLog log, const std::string& host, Language language, std::uint64_t seed)
    : log_(log),
      host_(host),
      language_(language),
      random_(seed * kEventLogs.size() + static_cast<std::uint64_t>(log)),
      messages_(language),
      date_text_(regional_.date(date_)) {
    std::uint32_t limit = 0;
    for (std::uint32_t rank = 1; rank <= kCodes; ++rank)
        code_limits_.push_back(limit += kLargestWeight / rank);
}

std::string_view LogLines::next() {
    constexpr std::uint32_t kOneOddLineIn = 1'500;
    constexpr std::uint32_t kKindsOfOddLines = 3;
    line_.clear();
    pass_time();
    const bool odd = random_.below(kOneOddLineIn) == 0;
    const std::uint32_t kind = odd ? random_.below(kKindsOfOddLines) : kKindsOfOddLines;
    if (kind == 0) return line_ = "\r\n";
    if (kind == 1) return line_ = "x\r\n";
    append_head();
    if (kind == 2)
        line_.resize(line_.rfind('|', line_.size() - 2));
    else
        append_message();
    return line_ += "\r\n";
}

void LogLines::pass_time() {
    second_of_day_ += static_cast<int>(random_.below(kLongestPause));
    if (second_of_day_ < kSecondsOfADay) return;
    second_of_day_ -= kSecondsOfADay;
    date_ = day_after(date_);
    date_text_ = regional_.date(date_);
}

// All fields before the message, each with its separator.
void LogLines::append_head() {
    const TimeOfDay time{second_of_day_ / 3600, second_of_day_ / 60 % 60, second_of_day_ % 60};
    const auto code = std::upper_bound(code_limits_.begin(), code_limits_.end(),
                                       random_.below(code_limits_.back())) -
                      code_limits_.begin();
    (line_ += type()) += '|';
    (line_ += date_text_) += '|';
    (line_ += regional_.time(time)) += '|';
    (line_ += kSources[static_cast<std::size_t>(code) % kSources.size()]) += '|';
    (line_ += std::to_string(kFirstCode + kCodeStep * code)) += '|';
    (line_ += any_of(kUsers, random_)) += '|';
    (line_ += host_) += '|';
}

void LogLines::append_message() {
    constexpr std::uint32_t kOneWithABarIn = 200;
    const std::string_view text = messages_.next(random_);
    if (random_.below(kOneWithABarIn) != 0) {
        line_ += text;
        return;
    }
    (line_ += text.substr(0, text.size() / 2)) += '|';
    line_ += text.substr(text.size() / 2);
}

std::string_view LogLines::type() {
    const std::uint32_t draw = random_.below(100);
    const TypeWord& word = log_ == EventLog::Security ? drawn_from(kSecurityShares, draw)
                                                      : drawn_from(kPlainShares, draw);
    return language_ == Language::German ? word.german : word.english;
}

}  // namespace tessarine::bench
