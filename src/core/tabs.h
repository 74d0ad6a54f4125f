// The two tab strips of the main window and the pages that they turn.
#pragma once

namespace tessarine {

struct Console;

/// The tab of TabStrip2 after those of the logs, "Analysis Summary".
inline constexpr int kSummaryTab = 4;

/// Put the pages of a tab strip on one another, the first one on top.
void PositionHost(Console& console);
void PositionMain(Console& console);

/// A tab of TabStrip1 or of TabStrip2 has been selected.
void click_tab_of_left_strip(Console& console);
void click_tab_of_right_strip(Console& console);

}  // namespace tessarine
