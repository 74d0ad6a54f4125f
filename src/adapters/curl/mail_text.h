// The texts of a mail: the addresses it goes to, and the head that its readers see.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/mail_sender.h"

namespace tessarine {

std::string_view without_blanks_around(std::string_view text);

/// The addresses of a list, without the blanks around them; what is empty is left out.
std::vector<std::string> addresses_of(std::string_view list, char delimiter);

/// Whether `text` can be an address: name, "@" and the name of a domain, without blanks and without
/// what means something else in a mail or in SMTP (RFC 5321, section 4.1.2, without quoted names).
bool is_mail_address(std::string_view text);

/// The header lines of a mail that goes out now (RFC 5322, section 3.6), in UTF-8; what is not
/// ASCII is in encoded words (RFC 2047).
std::vector<std::string> mail_headers(const Mail& mail, const std::vector<std::string>& recipients);

}  // namespace tessarine
