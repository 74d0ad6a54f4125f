// What is said between the console and a mail server (SMTP, RFC 5321).
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

/// Follows the talk for the lines that a user may see, and for what was refused before the goodbye.
/// The server's words are taken as they come: bounded, without control characters, in the console's
/// code page.
class SmtpTalk {
  public:
    /// Text of one or more whole lines.
    void say(std::string_view command);
    void hear(std::string_view reply);
    /// The mail itself is on its way.
    void begin_content();
    /// A line about the connection.
    void note(std::string_view text);

    /// The lines since the last call: notes, commands behind "> ", replies behind "< ".
    std::vector<std::string> take_lines();

    /// Whether the server has the mail.
    bool content_is_taken() const { return command_ == kContent && code_ >= 200 && code_ < 300; }
    /// Whether the last words have no code, as those of other protocols.
    bool is_no_smtp() const { return !words_.empty() && code_ == 0; }
    /// Whether the last reply was a refusal.
    bool was_refused() const { return code_ >= 400; }
    /// What was refused, and the server's words for it.
    std::string refusal() const;
    /// The recipients that were refused, each with the server's words.
    const std::vector<std::string>& refused_recipients() const { return refused_recipients_; }

  private:
    static constexpr std::string_view kContent = "the mail";

    void begin(std::string_view command);
    void hear_line(const std::string& line);
    void add_line(const std::string& line);

    std::vector<std::string> lines_;
    std::size_t lines_in_all_ = 0;
    std::string command_;
    int code_ = 0;       // of the reply to it
    std::string words_;  // of the reply to it
    bool reply_goes_on_ = false;
    bool ends_ = false;
    std::vector<std::string> refused_recipients_;
};

}  // namespace tessarine
