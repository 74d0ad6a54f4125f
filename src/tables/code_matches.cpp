#include "tables/code_matches.h"

#include "core/code_page.h"
#include "core/text.h"

namespace tessarine {

CodeMatches::CodeMatches(ListControl& list) : entries_(list.count()) {
    for (int i = 1; i <= entries_; ++i) ++counts_[lower_text(list.row(i).text())];
}

int CodeMatches::count(std::string_view code) {
    folded_.resize(code.size());
    for (std::size_t i = 0; i < code.size(); ++i)
        folded_[i] = static_cast<char>(lower_case(static_cast<unsigned char>(code[i])));
    const auto found = counts_.find(folded_);
    return found == counts_.end() ? 0 : found->second;
}

}  // namespace tessarine
