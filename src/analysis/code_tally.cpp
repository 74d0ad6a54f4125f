#include "analysis/code_tally.h"

namespace tessarine {

void CodeTally::count(std::string_view code, std::string_view source, int icon) {
    const std::size_t number = codes_.number_of(code);
    if (number <= counts_.size())
        ++counts_[number - 1].instances;
    else
        counts_.push_back({std::string(code), std::string(source), icon, 1 - everywhere_});
}

std::vector<CodeCount> CodeTally::codes() const {
    std::vector<CodeCount> counted = counts_;
    for (CodeCount& each : counted) each.instances += everywhere_;
    return counted;
}

}  // namespace tessarine
