// The mails that the console sends: the report of a scheduled run, and a test of the settings.
#pragma once

#include <string>

namespace tessarine {

struct Console;

/// Mails a report as the settings say. A failure is told in a message box that waits for the user,
/// and is none of the caller's.
void SendMailToEndUser(Console& console, std::string AttPath, const std::string& SubMsg);

/// Sends a short mail by the settings as they stand in Form3, and shows there what the mail server
/// says to it.
void SendMailToUser(Console& console);

/// The button "Test Settings".
void test_mail_settings(Console& console);

}  // namespace tessarine
