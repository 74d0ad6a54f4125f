// A decrypted answer of a host, from its bytes to event records.
#include <string>

#include "adapters/wsman/basics/limits.h"
#include "adapters/wsman/records/event_items.h"
#include "adapters/wsman/soap/soap_answer.h"
#include "adapters/wsman/soap/text_scrub.h"
#include "fuzz/promises.h"

namespace tessarine::fuzz {
namespace {

unsigned byte_at(std::string_view text, std::size_t i) {
    return i < text.size() ? static_cast<unsigned char>(text[i]) : 0;
}

// The length of the character of XML 1.0 at the front of a text; 0 when there is none. The lowest
// and the highest second byte stand beside each range of first bytes (Unicode, table 3-7).
std::size_t xml_character(std::string_view text) {
    struct Range {
        unsigned first, last, second_low, second_high;
        std::size_t length;
    };
    static constexpr Range kRanges[] = {{0xC2, 0xDF, 0x80, 0xBF, 2}, {0xE0, 0xE0, 0xA0, 0xBF, 3},
                                        {0xE1, 0xEC, 0x80, 0xBF, 3}, {0xED, 0xED, 0x80, 0x9F, 3},
                                        {0xEE, 0xEF, 0x80, 0xBF, 3}, {0xF0, 0xF0, 0x90, 0xBF, 4},
                                        {0xF1, 0xF3, 0x80, 0xBF, 4}, {0xF4, 0xF4, 0x80, 0x8F, 4}};
    const unsigned lead = byte_at(text, 0);
    if (lead < 0x80) return lead >= 0x20 || lead == '\t' || lead == '\n' || lead == '\r' ? 1 : 0;
    if (text.starts_with("\xEF\xBF\xBE") || text.starts_with("\xEF\xBF\xBF")) return 0;
    for (const Range& range : kRanges) {
        if (lead < range.first || lead > range.last) continue;
        if (byte_at(text, 1) < range.second_low || byte_at(text, 1) > range.second_high) return 0;
        for (std::size_t i = 2; i < range.length; ++i)
            if (byte_at(text, i) < 0x80 || byte_at(text, i) > 0xBF) return 0;
        return range.length;
    }
    return 0;
}

void hold_for_scrubbed(std::string_view document, const std::string& cleaned) {
    hold(cleaned.size() <= 5 * document.size(), "no byte becomes more than a reference");
    for (std::string_view rest = cleaned; !rest.empty();) {
        const std::size_t length = xml_character(rest);
        hold(length != 0, "what is scrubbed has only characters of XML");
        rest.remove_prefix(length);
    }
    std::string twice;
    scrub(cleaned, twice);
    hold(twice == cleaned, "there is nothing left to scrub");
}

void hold_for_answer(const SoapAnswer& answer, std::size_t records) {
    hold(answer.item_count == records, "all records of the answer are counted");
    hold(answer.context.size() <= limits::kElementText, "a context has an end");
    if (!answer.fault) return;
    hold(answer.fault->text.size() <= limits::kFaultText, "a host's words are few");
    hold(answer.fault->text.find_first_of("\r\n\t") == std::string::npos,
         "a host's words are one line");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view document = text_of(data, size);
    std::string cleaned;
    scrub(document, cleaned);
    hold_for_scrubbed(document, cleaned);
    std::string records;
    ItemReader items = event_items(records, HostClock());
    SoapAnswer answer;
    const bool read = succeeds([&] { answer = read_soap_answer(cleaned, items); });
    const std::size_t count = hold_for_records(records);
    if (read) hold_for_answer(answer, count);
    return 0;
}

}  // namespace tessarine::fuzz
