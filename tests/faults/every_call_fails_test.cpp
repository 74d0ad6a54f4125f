// What the console keeps when a call of the file system fails, each in turn, once and for good, and
// when the disk is full.
#include <gtest/gtest.h>

#include <string>

#include "app/events.h"
#include "faults/scenarios.h"

namespace tessarine::faults {
namespace {

using fakes::Rig;

// Runs the scenario with its call number `number` failing; false when it has fewer.
bool run_with_failure(const Scenario& scenario, int number, fakes::Failing failing) {
    Rig rig{control_events()};
    scenario.prepare(rig);
    rig.files.fail_call(number, failing);
    rig.run(scenario.act);
    const bool failed = rig.files.has_failed();
    rig.files.fail_call(0, failing);
    scenario.kept(rig);
    scenario.told(rig);
    EXPECT_EQ(rig.files.open_files(), 0);
    EXPECT_EQ(rig.files.held_locks(), 0);
    return failed;
}

class EveryCallFails : public testing::TestWithParam<Scenario> {};

TEST_P(EveryCallFails, AndNothingThatWasThereIsLost) {
    for (const auto failing : {fakes::Failing::Once, fakes::Failing::FromThenOn}) {
        int number = 1;
        while (run_with_failure(GetParam(), number, failing) && !HasFailure()) ++number;
        ASSERT_FALSE(HasFailure()) << "call " << number;
        EXPECT_GT(number, 1) << "no call was made";
    }
}

INSTANTIATE_TEST_SUITE_P(Of, EveryCallFails,
                         testing::ValuesIn(scenarios().begin(), scenarios().end()),
                         [](const auto& tested) { return tested.param.name; });

// An audit that has begun has its line in the audit log.
TEST(FullDisk, KeepsWhatWasThereWhereverItFillsUp) {
    constexpr std::size_t kReserved = 2000;
    for (const Scenario& scenario : scenarios())
        for (std::size_t room = 0; room <= kReserved + 800; room += 25) {
            Rig rig{control_events()};
            scenario.prepare(rig);
            rig.files.leave_room_for(room);
            rig.run(scenario.act);
            scenario.kept(rig);
            scenario.told(rig);
            const std::string log = "/app/Logs/30-11-2004.log";
            if (room >= kReserved && rig.files.file_exists(log)) {
                EXPECT_EQ(rig.files.bytes(log).find(" PC1 Audit "), 22U);
            }
            ASSERT_FALSE(testing::Test::HasFailure()) << scenario.name << " with " << room;
        }
}

}  // namespace
}  // namespace tessarine::faults
