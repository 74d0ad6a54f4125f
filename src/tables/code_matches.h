// Looking event codes up in a list of codes.
#pragma once

#include <string_view>
#include <vector>

#include "core/list/list_control.h"
#include "tables/code_map.h"

namespace tessarine {

/// How often each code stands in a list, compared as a whole without regard to case. It is a
/// snapshot: a list that changes is to be taken anew.
class CodeMatches {
  public:
    /// Takes the texts of the list's rows.
    explicit CodeMatches(const ListControl& list);

    /// How many entries of the list there are, and how many of them equal `code`.
    int entries() const { return entries_; }
    int count(std::string_view code) const { return counts_[codes_.find(code)]; }

  private:
    CodeMap codes_;
    std::vector<int> counts_ = {0};  // by number of the code
    int entries_;
};

}  // namespace tessarine
