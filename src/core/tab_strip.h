// A row of tabs, of which one is selected.
#pragma once

#include <string>
#include <vector>

namespace tessarine {

struct Tab {
    std::string caption;
    int image = 0;  ///< number in the strip's image list, 0 for none
};

/// Tabs are counted from 1.
struct TabStrip {
    std::vector<Tab> tabs;
    int selected = 1;

    Tab& tab(int index) { return tabs[static_cast<std::size_t>(index - 1)]; }
    const Tab& tab(int index) const { return tabs[static_cast<std::size_t>(index - 1)]; }
    const std::string& selected_caption() const { return tab(selected).caption; }
};

}  // namespace tessarine
