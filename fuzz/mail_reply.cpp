// A mail server's words: whatever it says, the lines that a user sees are bounded and plain.
#include <algorithm>
#include <string>

#include "adapters/curl/smtp_talk.h"
#include "fuzz/promises.h"

namespace tessarine::fuzz {

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    SmtpTalk talk;
    std::string_view rest = text_of(data, size);
    // The first byte of each piece says whose it is, the second how long it is.
    while (rest.size() > 2) {
        const auto length = static_cast<unsigned char>(rest[1]);
        const std::string_view words = rest.substr(2, length);
        switch (static_cast<unsigned char>(rest[0]) % 4) {
            case 0:
                talk.say(words);
                break;
            case 1:
                talk.begin_content();
                break;
            default:
                talk.hear(words);
        }
        rest.remove_prefix(std::min(rest.size(), words.size() + 2));
    }
    const auto is_plain = [](const std::string& line) {
        return line.size() <= 520 &&
               std::all_of(line.begin(), line.end(), [](unsigned char c) { return c >= 0x20; });
    };
    const std::vector<std::string> lines = talk.take_lines();
    hold(lines.size() <= 1000, "a user sees no more than a thousand lines");
    hold(std::all_of(lines.begin(), lines.end(), is_plain), "lines are short and plain");
    hold(talk.refusal().size() <= 2100, "a refusal is short");
    hold(!(talk.was_refused() && talk.content_is_taken()), "a mail is taken or refused");
    return 0;
}

}  // namespace tessarine::fuzz
