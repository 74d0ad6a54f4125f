#include "sample_network/faults/fault_message.h"

#include <memory>

#include "sample_network/wire/item_text.h"
#include "sample_network/wire/soap_text.h"

namespace tessarine::sample::faults {
namespace {

constexpr std::size_t kMegabyte = std::size_t{1024} * 1024;

void replace_first(std::string& text, std::string_view old, std::string_view by) {
    const std::size_t at = text.find(old);
    if (at != std::string::npos) text.replace(at, old.size(), by);
}

// A record of the System log whose message stands in the envelope as it is given here.
std::string item_with(const std::string& raw_message) {
    constexpr std::string_view kPlaceholder = "MESSAGE";
    SampleEvent event;
    event.log_file = "System";
    event.type = "Information";
    event.source_name = "Fault";
    event.event_code = 4711;
    event.computer_name = "FAULT";
    event.message = kPlaceholder;
    event.time_generated = event.time_written = Instant{*parse_day("2024-05-17")};
    std::string item = event_item(event);
    replace_first(item, kPlaceholder, raw_message);
    return item;
}

// Puts items before all others; an answer without items stays as it is.
void add_items(std::string& envelope, const std::string& items) {
    constexpr std::string_view kBegin = "Items>";
    const std::size_t at = envelope.find(kBegin);
    if (at != std::string::npos) envelope.insert(at + kBegin.size(), items);
}

std::string repeated(std::string_view text, std::size_t count) {
    std::string result;
    result.reserve(text.size() * count);
    for (std::size_t i = 0; i < count; ++i) result += text;
    return result;
}

}  // namespace

void never_end(SampleHost& host) {
    host.history = [history = host.history] {
        auto walk = std::make_shared<EventWalk>(history());
        return [history, walk]() -> const SampleEvent* {
            const SampleEvent* event = (*walk)();
            if (event != nullptr) return event;
            *walk = history();
            return (*walk)();
        };
    };
}

void answer_like_before_2012(SampleHost& host) {
    host.limits = {.envelope = 153'600, .elements = 20};
}

void answer_all_at_once(SampleHost& host) {
    host.limits.first_elements = host.limits.elements;
}

void drop_records(std::string& envelope) {
    const std::size_t begin = envelope.find("<n:Items>");
    const std::string_view end_tag = "</n:Items>";
    const std::size_t end = envelope.find(end_tag);
    if (end != std::string::npos) envelope.erase(begin, end + end_tag.size() - begin);
}

// The first item in the one namespace, the others in the other.
void split_items(std::string& envelope) {
    constexpr std::string_view kItemEnd = "</p:Win32_NTLogEvent>";
    replace_first(envelope, kItemEnd, std::string(kItemEnd) + "</w:Items><n:Items>");
    const std::size_t last = envelope.rfind("</w:Items>");
    if (last != std::string::npos) envelope.replace(last, 3, "</n");
}

void leave_open(std::string& envelope) {
    replace_first(envelope, "</s:Body>", "");
}

void declare_document_type(std::string& envelope) {
    envelope.insert(0, "<!DOCTYPE Envelope SYSTEM \"http://127.0.0.1/other.dtd\">");
}

void add_entity_bomb(std::string& envelope) {
    std::string type = "<!DOCTYPE Envelope [<!ENTITY e0 \"boom\">";
    for (int i = 1; i < 20; ++i)
        type += "<!ENTITY e" + std::to_string(i) + " \"" +
                repeated("&e" + std::to_string(i - 1) + ";", 10) + "\">";
    envelope.insert(0, type + "]>");
    add_items(envelope, item_with("&e19;"));
}

void nest_deeply(std::string& envelope) {
    constexpr std::size_t kDepth = 100'000;
    add_items(envelope, repeated("<a>", kDepth) + repeated("</a>", kDepth));
}

// A parser that writes each name out with its namespace needs 20,000 times 40,000 bytes for it.
void add_wide_tag(std::string& envelope) {
    std::string item = "<a xmlns:b=\"" + std::string(40'000, 'u') + "\"";
    for (int i = 0; i < 20'000; ++i) item += " b:x" + std::to_string(i) + "=\"\"";
    add_items(envelope, item + "/>");
}

void add_long_text(std::string& envelope) {
    add_items(envelope, item_with(std::string(2 * kMegabyte, 'x')));
}

void add_large_item(std::string& envelope) {
    add_items(envelope, "<a><b>" + std::string(8 * kMegabyte, 'x') + "</b></a>");
}

void add_many_items(std::string& envelope) {
    add_items(envelope, repeated("<a/>", 500'000));
}

// Raw and as references: control characters, half a pair, and what is no character.
void add_illegal_characters(std::string& envelope) {
    for (const char* raw : {"\x01", "&#x1;", "&#0;", "\xED\xA0\x80", "&#xD800;", "\xEF\xBF\xBE"})
        add_items(envelope, item_with("[" + std::string(raw) + "]"));
}

void add_raw_line_ends(std::string& envelope) {
    add_items(envelope, item_with("one\r\ntwo\nthree"));
}

// Without most properties, one of them said to be null.
void add_bare_item(std::string& envelope) {
    add_items(envelope,
              "<e xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\"><Logfile>System</Logfile>"
              "<TimeGenerated>2024-05-17T00:00:00Z</TimeGenerated><User xsi:nil=\"true\"/></e>");
}

// Error texts end up in the audit log, line by line.
void add_forged_time(std::string& envelope) {
    add_items(envelope, "<e><TimeGenerated>x\r\nGOODHOST Audit ok</TimeGenerated></e>");
}

void declare_latin_1(std::string& envelope) {
    envelope.insert(0, "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>");
    add_items(envelope, item_with("M\xFCnchen"));
}

void become_utf_16(std::string& envelope) {
    std::string wide = "\xFF\xFE";
    for (const char c : envelope) wide.append({c, '\0'});
    envelope = wide;
}

void relate_to_another(std::string& envelope) {
    replace_first(envelope, "<a:RelatesTo>uuid:", "<a:RelatesTo>uuid:0");
}

void be_of_unknown_kind(std::string& envelope) {
    envelope = release_answer("uuid:0");
}

}  // namespace tessarine::sample::faults
