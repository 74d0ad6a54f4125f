// What the console keeps when it gets no memory, at each allocation in turn.
#include <gtest/gtest.h>

#include <string>

#include "app/events.h"
#include "faults/failing_memory.h"
#include "faults/scenarios.h"

namespace tessarine::faults {
namespace {

// False when the scenario has fewer allocations.
bool run_without_memory(const Scenario& scenario, int allocation) {
    fakes::Rig rig{control_events()};
    scenario.prepare(rig);
    fail_allocation(allocation);
    rig.run(scenario.act);
    const bool failed = allocation_has_failed();
    fail_allocation(0);
    scenario.kept(rig);
    EXPECT_EQ(rig.files.open_files(), 0);
    EXPECT_EQ(rig.files.held_locks(), 0);
    EXPECT_EQ(rig.program.ended, failed);
    if (failed) {
        EXPECT_EQ(rig.dialogs.messages.back().text, "There is not enough memory to go on.");
    }
    return failed;
}

class MemoryFails : public testing::TestWithParam<Scenario> {};

TEST_P(MemoryFails, AndTheConsoleEndsWithWordsAndTheStoreIntact) {
    int allocation = 1;
    while (run_without_memory(GetParam(), allocation) && !HasFailure()) ++allocation;
    ASSERT_FALSE(HasFailure()) << "allocation " << allocation;
    EXPECT_GT(allocation, 10);
    RecordProperty("allocations", allocation - 1);
}

INSTANTIATE_TEST_SUITE_P(Of, MemoryFails, testing::ValuesIn(scenarios().begin(), scenarios().end()),
                         [](const auto& tested) { return tested.param.name; });

}  // namespace
}  // namespace tessarine::faults
