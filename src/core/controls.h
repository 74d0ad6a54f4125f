// The plain controls of the console's forms: state without a toolkit. Texts are in the console's
// 8-bit code page; "&" in a caption marks the letter that the keyboard reaches it by.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "core/colours.h"
#include "core/secret_text.h"
#include "platform/date_time.h"

namespace tessarine {

struct Label {
    std::string caption;
    std::string tool_tip;
    bool visible = true;
};

struct TextBox {
    std::string text;
    std::string tool_tip;
    bool visible = true;
    bool locked = false;  ///< shown, not to be edited
};

/// A text box that shows dots. Its text is in the clear, in memory that core files leave out.
struct SecretBox {
    SecretText text;
};

/// `value` is 0 or 1.
struct CheckBox {
    std::string caption;
    std::string tool_tip;
    int value = 0;
};

/// One of a group of which one is on; the form that holds the group keeps it so.
struct OptionButton {
    std::string caption;
    bool value = false;
};

struct CommandButton {
    std::string caption;
    std::string tool_tip;
};

/// Shows one picture of its form's image list.
struct Image {
    int picture = 0;  ///< 0 for none
};

struct Frame {
    std::string caption;
    bool visible = true;
    std::string tool_tip;
};

/// Raises its event every `interval` milliseconds while it is enabled.
struct Timer {
    int interval = 0;
    bool enabled = false;
};

/// A pair of arrows beside a text; the event handlers wrap it at its ends.
struct UpDown {
    int minimum = 0;
    int maximum = 0;
    int value = 0;
};

/// A text, typed or chosen from a list of texts, which only grows.
struct ComboBox {
    std::string text;
    std::vector<std::string> items;
    std::string tool_tip;
};

/// Lines of text, the last one in sight.
struct ListBox {
    std::vector<std::string> items;
};

struct MonthView {
    Date value;
};

/// Chart types have the numbers that the forms' option buttons set.
enum class ChartType : int { Bar = 1, Pie = 14 };

/// What a column of a chart stands for.
struct ChartSeries {
    std::string name;
    std::uint32_t colour = 0;  ///< made by `rgb`
    bool operator==(const ChartSeries&) const = default;
};

struct Chart {
    std::vector<ChartSeries> series;   ///< by column; at least as many as there are points
    std::vector<std::int64_t> points;  ///< one for each column that shows
    ChartType type = ChartType::Bar;
    std::string tool_tip;
    bool operator==(const Chart&) const = default;
};

}  // namespace tessarine
