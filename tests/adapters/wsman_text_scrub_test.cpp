#include "adapters/wsman/soap/text_scrub.h"

#include <gtest/gtest.h>

#include "xml/xml_reader.h"

namespace tessarine {
namespace {

const std::string kInstead = "\xEF\xBF\xBD";

std::string scrubbed(std::string_view document) {
    std::string cleaned = "of the last call";
    scrub(document, cleaned);
    return cleaned;
}

TEST(TextScrub, ReplacesWhatXmlForbids) {
    struct Case {
        std::string_view text, expected;
    };
    const std::string kTwo = kInstead + kInstead;
    const std::string kThree = kTwo + kInstead;
    const Case cases[] = {
        {"plain & \t\n \xC3\xBC \xE2\x82\xAC \xF0\x9F\x98\x80 \x7F", ""},
        {"\xEF\xBF\xBC \xEF\xBF\xBD \xED\x9F\xBF \xEE\x80\x80 \xF4\x8F\xBF\xBF", ""},
        {"&amp;&#9;&#10;&#13;&#x20AC;&#128512;&#xD;&#;&#x;&unknown;&#12", ""},
        {"\x01", kInstead},
        {std::string_view("\0<", 2), "\xEF\xBF\xBD<"},
        {"&#1;", kInstead},
        {"&#x1;", kInstead},
        {"&#0;", kInstead},
        {"&#xD800;", kInstead},
        {"&#xFFFF;", kInstead},
        {"&#x110000;", kInstead},
        {"&#99999999999;", kInstead},
        {"&#x0000001F;", kInstead},
        {"\xED\xA0\x80", kThree},
        {"\xEF\xBF\xBE", kThree},
        {"\xEF\xBF\xBF", kThree},
        {"\xC0\xAF", kTwo},
        {"\xE0\x80\xAF", kThree},
        {"\xF5\x80", kTwo},
        {"\x80", kInstead},
        {"\xE2\x82", kTwo},
        {"\xC3", kInstead},
    };
    for (const Case& c : cases)
        EXPECT_EQ(scrubbed(c.text), c.expected.empty() ? c.text : c.expected) << c.text;
}

TEST(TextScrub, KeepsCarriageReturnsOfTextsAlone) {
    EXPECT_EQ(scrubbed("<?xml version=\"1.0\"?>\r\n<a>\r\n<b\r\nc=\"d\">x\r\ny\rz</b\r></a>\r\n"),
              "<?xml version=\"1.0\"?>\r\n<a>&#13;\n<b\r\nc=\"d\">x&#13;\ny&#13;z</b\r></a>");
    EXPECT_EQ(scrubbed(std::string_view("<a/>\0\0\r\n\0", 9)), "<a/>");
    EXPECT_EQ(scrubbed("\r\n"), "");
}

TEST(TextScrub, LetsTheParserReadAnyBytes) {
    class Nothing final : public XmlHandler {
        void start_element(XmlName, const XmlAttributes&) override {}
        void end_element() override {}
        void text(std::string_view) override {}
    } nothing;
    for (int first = 0; first < 256; ++first)
        for (const int second : {0x00, 0x0D, 0x20, 0x80, 0xA0, 0xBF, 0xC3, 0xED, 0xFF}) {
            std::string text = {static_cast<char>(first), static_cast<char>(second)};
            if (first == '<' || first == '&') continue;
            EXPECT_NO_THROW(read_xml(scrubbed("<a>" + text + "</a>"), nothing)) << first;
        }
}

}  // namespace
}  // namespace tessarine
