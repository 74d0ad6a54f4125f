#include "adapters/curl/smtp_talk.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "core/code_page.h"

namespace tessarine {
namespace {

// Of what a server may make the console hold: a reply's line has 512 bytes at most, a talk to a
// hundred recipients some 250 lines.
constexpr std::size_t kLineLength = 512;
constexpr std::size_t kReplyLength = 1000;
constexpr std::size_t kLines = 1000;

constexpr std::string_view kRecipientCommand = "RCPT TO:";

// The lines of `text`, in the console's code page.
std::vector<std::string> lines_of(std::string_view text) {
    std::vector<std::string> lines;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        std::string line = from_utf8(text.substr(0, std::min(end, kLineLength)));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.ends_with('\r')) line.pop_back();
        std::replace_if(
            line.begin(), line.end(), [](unsigned char c) { return c < ' ' || c == 0x7F; }, ' ');
        lines.push_back(std::move(line));
    }
    return lines;
}

}  // namespace

void SmtpTalk::say(std::string_view command) {
    for (const std::string& line : lines_of(command)) {
        add_line("> " + line);
        if (line == "QUIT") ends_ = true;
        begin(line);
    }
}

void SmtpTalk::hear(std::string_view reply) {
    for (const std::string& line : lines_of(reply)) hear_line(line);
}

void SmtpTalk::begin_content() {
    if (command_ != kContent) begin(kContent);
}

void SmtpTalk::note(std::string_view text) {
    for (const std::string& line : lines_of(text)) add_line(line);
}

std::vector<std::string> SmtpTalk::take_lines() {
    return std::exchange(lines_, {});
}

std::string SmtpTalk::refusal() const {
    return (command_.empty() ? "the connection" : command_) + ": " + words_;
}

void SmtpTalk::begin(std::string_view command) {
    if (ends_) return;
    command_ = command;
    code_ = 0;
    words_.clear();
}

// All lines of a reply begin with its code, all but the last with a "-" after it.
void SmtpTalk::hear_line(const std::string& line) {
    add_line("< " + line);
    if (ends_) return;
    if (!std::exchange(reply_goes_on_, line.size() > 3 && line[3] == '-')) {
        words_.clear();
        code_ = 0;
        std::from_chars(line.data(), line.data() + std::min<std::size_t>(line.size(), 3), code_);
    }
    if (words_.size() < kReplyLength) words_ += words_.empty() ? line : " " + line;
    const bool recipient_refused =
        !reply_goes_on_ && was_refused() && command_.starts_with(kRecipientCommand);
    if (recipient_refused)
        refused_recipients_.push_back(command_.substr(kRecipientCommand.size()) + ": " + words_);
}

void SmtpTalk::add_line(const std::string& line) {
    if (++lines_in_all_ <= kLines) lines_.push_back(line);
}

}  // namespace tessarine
