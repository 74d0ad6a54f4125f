#include "tables/code_matches.h"

namespace tessarine {

CodeMatches::CodeMatches(const ListControl& list) : entries_(list.count()) {
    for (int row = 1; row <= entries_; ++row) {
        const std::size_t number = codes_.number_of(list.row(row).text());
        if (number == counts_.size()) counts_.push_back(0);
        ++counts_[number];
    }
}

}  // namespace tessarine
