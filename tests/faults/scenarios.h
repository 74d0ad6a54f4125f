// What a user does with the store, to be disturbed in every way.
#pragma once

#include <functional>
#include <span>
#include <string>

#include "fakes/rig.h"

namespace tessarine::faults {

struct Scenario {
    std::string name;
    std::function<void(fakes::Rig&)> prepare;
    std::function<void(Console&)> act;
    /// What must be true of the files afterwards, whatever has failed.
    std::function<void(fakes::Rig&)> kept;
    /// What must be true of the words about a failure of the console's world.
    std::function<void(fakes::Rig&)> told = [](fakes::Rig&) {};
};

std::span<const Scenario> scenarios();

}  // namespace tessarine::faults
