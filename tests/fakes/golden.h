// Whole documents that a test expects.
#pragma once

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

namespace tessarine::fakes {

/// The bytes of a file in tests/golden; a file that is missing fails the test.
inline std::string golden(const std::string& name) {
    std::ifstream file(std::string(TESSARINE_GOLDEN_DIR) + "/" + name, std::ios::binary);
    EXPECT_TRUE(file) << name;
    return {std::istreambuf_iterator<char>(file), {}};
}

}  // namespace tessarine::fakes
