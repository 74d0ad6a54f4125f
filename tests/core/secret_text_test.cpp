#include "core/secret_text.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory_resource>
#include <string>

namespace tessarine {
namespace {

// Looks at memory as it is given back.
class WatchedMemory final : public std::pmr::memory_resource {
  public:
    int returned = 0;
    bool clean = true;

  private:
    void* do_allocate(std::size_t bytes, std::size_t) override { return ::operator new(bytes); }
    void do_deallocate(void* start, std::size_t bytes, std::size_t) override {
        const char* text = static_cast<const char*>(start);
        clean = clean && std::all_of(text, text + bytes, [](char c) { return c == '\0'; });
        ++returned;
        ::operator delete(start);
    }
    bool do_is_equal(const memory_resource& other) const noexcept override {
        return this == &other;
    }
};

TEST(SecretText, LeavesNothingInTheMemoryThatItGivesBack) {
    WatchedMemory memory;
    {
        SecretText secret(&memory);
        secret = "short";
        secret = std::string(5000, 'x');
        secret = "a short one again";
        EXPECT_EQ(secret.text(), "a short one again");
    }
    EXPECT_GE(memory.returned, 2);
    EXPECT_TRUE(memory.clean);
}

TEST(SecretText, IsEditedInPlaceAndLeavesNothingEither) {
    WatchedMemory memory;
    {
        SecretText secret(&memory);
        secret.replace(0, 0, std::string("middle"));
        secret.replace(6, 0, std::string("end"));
        secret.replace(1, 4, std::string("y"));
        EXPECT_EQ(secret.text(), "myeend");
        secret.replace(4, 100, std::string());
        secret.replace(100, 1, std::string("!"));
        EXPECT_EQ(secret.text(), "myee!");
    }
    EXPECT_TRUE(memory.clean);
}

TEST(SecretText, WipesWhatItTakesOver) {
    for (const std::size_t length : {std::size_t{8}, std::size_t{400}}) {
        std::string text(length, 's');
        const char* bytes = text.data();
        // What a longer text has left there goes as well.
        text.resize(length / 4);
        const SecretText secret(std::move(text));
        EXPECT_EQ(secret.text(), std::string(length / 4, 's'));
        EXPECT_EQ(std::find(bytes, bytes + length, 's'), bytes + length);
    }
}

}  // namespace
}  // namespace tessarine
