#include "adapters/wsman/records/event_spool.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "adapters/wsman/records/spooled_events.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

constexpr std::uint64_t kPlenty = std::uint64_t{1} << 30;

std::string record_of(const std::string& message, EventProperties::Property user) {
    EventProperties event;
    event.Message = message;
    event.User = user;
    std::string bytes;
    append_event(bytes, event);
    return bytes;
}

TEST(EventSpool, GivesItsRecordsAgainAndAgain) {
    EventSpool spool("", kPlenty);
    EventProperties event;
    EXPECT_FALSE(spool.next(event));
    // Records that end within a block of the file, on its edge, and far after it.
    for (int i = 0; i < 300; ++i) {
        const std::string message(static_cast<std::size_t>(i * i * 7), static_cast<char>(i));
        spool.append(record_of(message, i % 2 == 0 ? EventProperties::Property("") : std::nullopt));
        ASSERT_TRUE(spool.next(event)) << "at once";
        ASSERT_EQ(event.Message, message);
    }
    for (int walk = 0; walk < 2; ++walk) {
        spool.start_over();
        for (int i = 0; i < 300; ++i) {
            ASSERT_TRUE(spool.next(event));
            ASSERT_EQ(event.Message->size(), static_cast<std::size_t>(i * i * 7));
            ASSERT_EQ(event.User.has_value(), i % 2 == 0) << "null is not empty";
            ASSERT_FALSE(event.Type.has_value());
        }
        ASSERT_FALSE(spool.next(event));
    }
}

TEST(EventSpool, KeepsNoMoreThanItMay) {
    const std::string record = record_of("0123456789", "user");
    EventSpool spool("", 2 * record.size());
    spool.append(record + record);
    EXPECT_THROW(spool.append(record), RuntimeError);
    // Half of what is free stays free.
    EventSpool on_full_disk("", kPlenty, 2 * record.size() + 1);
    on_full_disk.append(record);
    EXPECT_THROW(on_full_disk.append("x"), RuntimeError);
}

TEST(EventSpool, HasNoNameAndTellsOfAFolderThatIsMissing) {
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("spool-test-" + std::to_string(getpid()));
    EXPECT_THROW(EventSpool spool(folder.string(), kPlenty), RuntimeError);
    std::filesystem::create_directory(folder);
    {
        EventSpool spool(folder.string(), kPlenty);
        spool.append(record_of("secret", "user"));
        EXPECT_TRUE(std::filesystem::is_empty(folder));
    }
    std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace tessarine
