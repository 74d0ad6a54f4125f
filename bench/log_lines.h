// The lines of an event log that no host ever had.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "bench/message_texts.h"
#include "bench/random_numbers.h"
#include "core/regional_text.h"
#include "core/type_words.h"
#include "platform/date_time.h"
#include "store/log_files.h"

namespace tessarine::bench {

/// Codes are 500, 513, 526 and so on; each is the rarer the higher it is, by Zipf's law.
inline constexpr int kCodes = 400;
inline constexpr int kFirstCode = 500;
inline constexpr int kCodeStep = 13;

/// 1 line in 1,500 is short, empty or breaks off, and 1 message in 200 holds a "|".
class LogLines {
  public:
    LogLines(EventLog log, const std::string& host, Language language, std::uint64_t seed);

    /// The next line, CR LF included; the view holds until the next call.
    std::string_view next();

  private:
    void pass_time();
    void append_head();
    void append_message();
    std::string_view type();

    EventLog log_;
    std::string host_;
    Language language_;
    RandomNumbers random_;
    MessageTexts messages_;
    std::vector<std::uint32_t> code_limits_;  // of a draw, by code
    RegionalText regional_;
    Date date_{2004, 1, 1};
    int second_of_day_ = 0;
    std::string date_text_;
    std::string line_;
};

}  // namespace tessarine::bench
