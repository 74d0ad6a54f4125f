// The two tab strips of the main window and the pages that they turn.
#pragma once

namespace tessarine {

struct Console;
struct SettingsForm;

/// The tab of TabStrip2 after those of the logs, "Analysis Summary".
inline constexpr int kSummaryTab = 4;

/// Put the pages of a tab strip on one another, the first one on top.
void PositionHost(Console& console);
void PositionMain(Console& console);

void position_settings(SettingsForm& form);

/// A tab of TabStrip1 or of TabStrip2 of the main window, or of the settings, has been selected.
void click_tab_of_left_strip(Console& console);
void click_tab_of_right_strip(Console& console);
void click_tab_of_settings(Console& console);

}  // namespace tessarine
