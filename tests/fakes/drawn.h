// The console's controls as text, so that an expectation can stand in a test as it is seen.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tessarine {
struct Chart;
struct Console;
}  // namespace tessarine

namespace tessarine::fakes {

struct Rig;

/// The controls of Form1 that are named, with blanks between, in UTF-8; an unknown name fails the
/// test. The text begins with a line end, so that a raw string may. Line ends inside a text show as
/// "~", other control characters as "?".
///
///     AlertList:                 a list; rows as icon|text|sub-items
///       0|4625                   selected item ">", selected row "*", red cell "!",
///       >*3|!Error|[7]-          picture of a sub-item "[7]", check box "[x]" or "[ ]"
///     st1: [Zero records][][][2 hosts][]
///     TabStrip2: [* System Log  #1][ Application Log#2]      selected "*", image "#"
///     TxtAlert: "4625"           fields and labels
///     Check1: 1                  boxes
///     pbar1: 3/10 hidden
///     shogrid: checked           menu entries
///     Option1: on                one of several
///     sysPie: bars Error=3 Information=0 Warning=12
std::string drawn(Rig& rig, std::string_view names);

/// Every control of Form1 and of the loaded dialogs in the same words, as "Form2.lblType: ...", and
/// each row of a list in a line of its own.
std::vector<std::string> drawn_lines(Console& console);

/// A chart alone, as it stands after its name.
std::string drawn(const Chart& chart);

}  // namespace tessarine::fakes
