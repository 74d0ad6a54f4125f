#include "adapters/curl/mail_text.h"

#include <algorithm>
#include <ctime>
#include <iomanip>
#include <locale>
#include <random>
#include <sstream>

#include "core/code_page.h"

namespace tessarine {
namespace {

constexpr std::size_t kLongestAddress = 254;

bool is_plain(char c) {
    return c >= ' ' && c <= '~';
}

bool is_alphanumeric(char c) {
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

bool may_stand_in_address(char c) {
    constexpr std::string_view kSpecial = " ()<>[]:;@\\,\"\x7F";
    return static_cast<unsigned char>(c) > ' ' && kSpecial.find(c) == std::string_view::npos;
}

// Parts with dots between them, none of them empty.
bool is_dotted(std::string_view text) {
    return !text.empty() && text.front() != '.' && text.back() != '.' &&
           text.find("..") == std::string_view::npos &&
           std::all_of(text.begin(), text.end(), may_stand_in_address);
}

std::string hexadecimal(unsigned byte) {
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    return {kDigits[byte / 16 % 16], kDigits[byte % 16]};
}

// Whole characters in each word, which has 75 bytes at most.
std::string encoded_words(std::string_view text) {
    constexpr std::size_t kCharacters = 5;
    std::string words;
    for (std::size_t begin = 0; begin < text.size(); begin += kCharacters) {
        words += words.empty() ? "=?UTF-8?Q?" : "\r\n =?UTF-8?Q?";
        for (const char byte : to_utf8(text.substr(begin, kCharacters)))
            words += is_alphanumeric(byte) ? std::string(1, byte)
                                           : "=" + hexadecimal(static_cast<unsigned char>(byte));
        words += "?=";
    }
    return words;
}

std::string header_text(std::string_view text) {
    return std::all_of(text.begin(), text.end(), is_plain) ? std::string(text)
                                                           : encoded_words(text);
}

// The name of a sender, which is quoted where it is ASCII.
std::string phrase(std::string_view text) {
    if (!std::all_of(text.begin(), text.end(), is_plain)) return encoded_words(text);
    std::string quoted = "\"";
    for (const char c : text)
        quoted += c == '"' || c == '\\' ? std::string{'\\', c} : std::string{c};
    return quoted + '"';
}

std::string date_now() {
    const std::time_t now = std::time(nullptr);
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text << std::put_time(std::localtime(&now), "%a, %d %b %Y %H:%M:%S %z");
    return text.str();
}

// Random, in the domain of the sender.
std::string message_id(const std::string& sender) {
    std::random_device random;
    std::string id = "<";
    for (int i = 0; i < 16; ++i) id += hexadecimal(random());
    return id + to_utf8(sender.substr(sender.rfind('@'))) + ">";
}

}  // namespace

std::string_view without_blanks_around(std::string_view text) {
    constexpr std::string_view kBlanks = " \t\r\n";
    text.remove_prefix(std::min(text.find_first_not_of(kBlanks), text.size()));
    return text.substr(0, text.find_last_not_of(kBlanks) + 1);
}

std::vector<std::string> addresses_of(std::string_view list, char delimiter) {
    std::vector<std::string> addresses;
    while (!list.empty()) {
        const std::size_t end = std::min(list.find(delimiter), list.size());
        const std::string_view address = without_blanks_around(list.substr(0, end));
        list.remove_prefix(std::min(end + 1, list.size()));
        if (!address.empty()) addresses.emplace_back(address);
    }
    return addresses;
}

bool is_mail_address(std::string_view text) {
    const std::size_t at = text.rfind('@');
    return text.size() <= kLongestAddress && at != std::string_view::npos &&
           is_dotted(text.substr(0, at)) && is_dotted(text.substr(at + 1));
}

std::vector<std::string> mail_headers(const Mail& mail,
                                      const std::vector<std::string>& recipients) {
    std::string to;
    for (const std::string& recipient : recipients)
        to += (to.empty() ? "" : ",\r\n ") + to_utf8(recipient);
    return {"Date: " + date_now(),
            "From: " + phrase(mail.sender_name) + " <" + to_utf8(mail.sender) + ">", "To: " + to,
            "Subject: " + header_text(mail.subject), "Message-ID: " + message_id(mail.sender),
            // Nobody is to be told that somebody is on holiday (RFC 3834).
            "Auto-Submitted: auto-generated"};
}

}  // namespace tessarine
