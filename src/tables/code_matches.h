// Looking event codes up in a list of codes.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "core/list/list_control.h"

namespace tessarine {

/// How often each code stands in a list, compared as a whole without regard to case. It is a
/// snapshot: a list that changes is to be taken anew.
class CodeMatches {
  public:
    /// Takes the texts of the list's rows.
    explicit CodeMatches(ListControl& list);

    /// How many entries of the list there are, and how many of them equal `code`.
    int entries() const { return entries_; }
    int count(std::string_view code);

  private:
    std::unordered_map<std::string, int> counts_;
    std::string folded_;  // kept from call to call, so that a look-up takes no memory
    int entries_ = 0;
};

}  // namespace tessarine
