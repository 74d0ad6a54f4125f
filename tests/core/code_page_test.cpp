#include "core/code_page.h"

#include <gtest/gtest.h>

#include <string>

#include "core/text.h"

namespace tessarine {
namespace {

std::string all_bytes() {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    return bytes;
}

TEST(CodePage, EveryByteSurvivesUnicode) {
    EXPECT_EQ(from_utf8(to_utf8(all_bytes())), all_bytes());
    EXPECT_EQ(from_utf16(to_utf16(all_bytes())), all_bytes());
    EXPECT_EQ(to_utf8("\x80\x8A\x99\xFC"), "€Š™ü");
}

TEST(CodePage, WhatThePageLacksIsLost) {
    const struct {
        const char* what;
        std::string utf8;
        std::string expected;
    } cases[] = {
        {"marks around a date", "\u200E30\u200E.\u200E11", "30.11"},
        {"byte-order mark", "\uFEFFType", "Type"},
        {"other scripts", "aЖ日😀b", "a???b"},
        {"a lone continuation byte", "a\x80z", "a?z"},
        {"a sequence that is cut off", "a\xE2\x82", "a??"},
        {"a sequence cut off by a letter", "\xE2\x82z", "??z"},
        {"an overlong slash", "\xC0\xAF", "??"},
        {"a surrogate", "\xED\xA0\x80", "???"},
        {"above the last code point", "\xF4\x90\x80\x80", "????"},
        {"no UTF-8 at all", "\xFF\xFE", "??"},
        {"a zero inside", std::string("a\0b", 3), std::string("a\0b", 3)},
    };
    for (const auto& each : cases) EXPECT_EQ(from_utf8(each.utf8), each.expected) << each.what;

    EXPECT_EQ(from_utf16(u"a\xD83D\xDE00z"), "a?z") << "a pair is one character";
    EXPECT_EQ(from_utf16(u"a\xD83Dz\xDE00"), "a?z?") << "halves of a pair";
}

TEST(CodePage, CaseIsFoldedOverTheWholePage) {
    EXPECT_EQ(upper_text("stra\xDF"
                         "e \xE4\xFF\x9A\x9C\x9E\xF7"),
              "STRA\xDF"
              "E \xC4\x9F\x8A\x8C\x8E\xF7");
    EXPECT_EQ(lower_text("\xC4\x9F\x8A\x8C\x8E\xD7"), "\xE4\xFF\x9A\x9C\x9E\xD7");
    for (int byte = 0; byte < 256; ++byte) {
        const auto character = static_cast<unsigned char>(byte);
        EXPECT_EQ(lower_case(upper_case(character)), lower_case(character)) << byte;
    }
}

TEST(Text, ComparesWithoutRegardToCase) {
    EXPECT_TRUE(
        same_text("\xDC"
                  "berwachungsfehler",
                  "\xFC"
                  "BERWACHUNGSFEHLER"));
    EXPECT_FALSE(same_text("700", "7001"));
    EXPECT_LT(compare_text("10", "9"), 0) << "numbers are texts";
    EXPECT_LT(compare_text("pc", "PC1"), 0);
    EXPECT_GT(compare_text("b", "A"), 0);
    EXPECT_EQ(compare_text("PC1", "pc1"), 0);
    EXPECT_GT(compare_text("\xE4", "z"), 0) << "letters above 127 come after the others";
}

TEST(Text, ReplacesEveryOccurrence) {
    EXPECT_EQ(replace_text("A_System.LOG_system.log", "_system.log", ""), "A");
    EXPECT_EQ(replace_text("\\\\\\\\\\PC", "\\\\", ""), "\\PC");
    EXPECT_EQ(replace_text("aaa", "a", "aa"), "aaaaaa");
    EXPECT_EQ(replace_text("short", "longer than it", "x"), "short");
    EXPECT_EQ(replace_text("any", "", "x"), "any");
}

}  // namespace
}  // namespace tessarine
