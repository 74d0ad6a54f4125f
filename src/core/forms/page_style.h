// The design-time text of txtHtmlStyle: style sheet and table head of the exported pages.
#pragma once

namespace tessarine {

/// Lines end in CR LF. The browser's tolerance is counted on: the page has tags that nothing
/// opened.
inline constexpr const char* kPageStyle =
    "<style>\r\n"
    "    body { margin: 10px; background-color: #fff; font-family: Verdana, Arial, Helvetica, "
    "sans-serif; width: 100% }\r\n"
    "    table { width: 100%; border: px; border-collapse: collapse; }    \r\n"
    "    .log tr.hdr { font-size: 10px; font-weight: bold; white-space: nowrap; }    \r\n"
    "    .log tr.light { vertical-align: text-top; font-size: 10px; background-color: #fcfcfc; "
    "color: #000; }\r\n"
    "    .log tr.dark {vertical-align: text-top; font-size: 10px;  background-color: #f0f0f0; "
    "color: #000; }    \r\n"
    "    .log td { padding: 12px; padding-right: 10px; border-bottom: #ccc 1px solid}    \r\n"
    "    .log td.hdrTitle { padding-top: 20px; padding-left: 10px; font-size: 12px; font-weight: "
    "bold; white-space: nowrap; }    \r\n"
    "    .log td.nowrap { white-space: nowrap; }  \r\n"
    "    .log td.msg { padding-top: 8px; padding-bottom: 16px; white-space: normal; }\r\n"
    "    td.hdrDT { padding-left: 10px; font-size: 10px; }\r\n"
    "    td.hdrcol1 { padding-left: 10px; font-size: 10px; color: #0066CC; }\r\n"
    "    td.hdrcol2 { width: 99%; font-size: 10px; }      \r\n"
    "    p { font-size: 10px; }\r\n"
    "    .footer { color: #666; font-size: 9px; }\r\n"
    "        \r\n"
    "</style>\r\n"
    "<tr><td colspan=\"2\"><hr /></td></tr><tr><td colspan=\"2\"><div style=\"clear: both;\" />"
    "<table class=\"log\"><tr class=\"hdr\"><td>Type</td><td>Host</td><td>Log</td><td>Time</td>"
    "<td>Source</td><td>Event</td><td>User</td></tr>\r\n"
    "\r\n";

}  // namespace tessarine
