#include "sample_network/hosts/wql.h"

#include <algorithm>
#include <cctype>

namespace tessarine::sample {
namespace {

bool is_blank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool is_word_character(char c) {
    return std::isalnum(static_cast<unsigned char>(c)) || c == '_';
}

bool same_word(std::string_view left, std::string_view right) {
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), [](char a, char b) {
        return std::tolower(static_cast<unsigned char>(a)) ==
               std::tolower(static_cast<unsigned char>(b));
    });
}

// Takes tokens off the front of the text.
class WqlReader {
  public:
    explicit WqlReader(std::string_view text) : rest_(text) {}

    bool at_end() {
        skip_blanks();
        return rest_.empty();
    }

    // Takes the keyword or class name when it comes next.
    bool take_word(std::string_view word) {
        skip_blanks();
        const auto* end = std::find_if_not(rest_.begin(), rest_.end(), is_word_character);
        const auto length = static_cast<std::size_t>(end - rest_.begin());
        if (!same_word(rest_.substr(0, length), word)) return false;
        rest_.remove_prefix(length);
        return true;
    }

    bool take_mark(std::string_view mark) {
        skip_blanks();
        if (!rest_.starts_with(mark)) return false;
        rest_.remove_prefix(mark.size());
        return true;
    }

    std::optional<Instant> take_quoted_time() {
        skip_blanks();
        if (rest_.empty() || (rest_.front() != '\'' && rest_.front() != '"')) return std::nullopt;
        const std::size_t end = rest_.find(rest_.front(), 1);
        if (end == std::string_view::npos) return std::nullopt;
        const auto time = parse_dmtf(rest_.substr(1, end - 1));
        rest_.remove_prefix(end + 1);
        return time ? std::optional{time->instant} : std::nullopt;
    }

  private:
    void skip_blanks() {
        while (!rest_.empty() && is_blank(rest_.front())) rest_.remove_prefix(1);
    }

    std::string_view rest_;
};

bool take_class(WqlReader& reader, QueriedClass& queried) {
    const bool time_zone = reader.take_word("Win32_TimeZone");
    queried = time_zone ? QueriedClass::TimeZone : QueriedClass::NTLogEvent;
    return time_zone || reader.take_word("Win32_NTLogEvent");
}

// Each bound may stand once.
bool take_condition(WqlReader& reader, WqlQuery& query) {
    if (!reader.take_word("TimeWritten")) return false;
    const bool from = reader.take_mark(">=");
    if (!from && (!reader.take_mark("<") || reader.take_mark("="))) return false;
    std::optional<Instant>& bound = from ? query.written_from : query.written_before;
    if (bound) return false;
    bound = reader.take_quoted_time();
    return bound.has_value();
}

bool take_conditions(WqlReader& reader, WqlQuery& query) {
    if (!reader.take_word("WHERE")) return true;
    if (query.queried != QueriedClass::NTLogEvent || !take_condition(reader, query)) return false;
    return !reader.take_word("AND") || take_condition(reader, query);
}

}  // namespace

std::optional<WqlQuery> parse_wql(std::string_view text) {
    WqlReader reader(text);
    WqlQuery query;
    if (reader.take_word("SELECT") && reader.take_mark("*") && reader.take_word("FROM") &&
        take_class(reader, query.queried) && take_conditions(reader, query) && reader.at_end())
        return query;
    return std::nullopt;
}

}  // namespace tessarine::sample
