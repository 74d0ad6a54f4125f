#include "core/scramble.h"

#include <gtest/gtest.h>

#include <string>

#include "core/settings_store.h"

namespace tessarine {
namespace {

TEST(Scramble, GeneratorStartsAsStoredPasswordsNeedIt) {
    PseudoRandom random;
    EXPECT_NEAR(random.reset(), 0.224007, 0.0000005);
    random.draw();
    EXPECT_NEAR(random.reset(), 0.224007, 0.0000005) << "a reset forgets what came before";
}

TEST(Scramble, StoredFormStaysTheSame) {
    EXPECT_EQ(Scramble("Not Found", kScrambleKey), "\x3E\xAE\xFC\xD1\xE1\x4A\xF5\xB0\xC1");
    EXPECT_EQ(Scramble("P\xE4ssw0rd!", kScrambleKey), "\x20\x25\xFB\x82\xD0\x15\xF2\xBA\x84");
}

TEST(Scramble, TwiceGivesEveryTextBack) {
    std::string bytes;
    for (int round = 0; round < 3; ++round)
        for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
    for (const std::string& text : {bytes, std::string(), std::string(1, '\0')}) {
        const std::string hidden = Scramble(text, kScrambleKey);
        EXPECT_EQ(hidden.size(), text.size());
        EXPECT_EQ(Scramble(hidden, kScrambleKey), text);
    }
    EXPECT_NE(Scramble(bytes, "another key"), Scramble(bytes, kScrambleKey));
}

}  // namespace
}  // namespace tessarine
