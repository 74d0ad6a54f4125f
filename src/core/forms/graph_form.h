// Form5, the events of one log by type, as they stand in the tables.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/controls.h"
#include "core/form.h"
#include "core/icons.h"

namespace tessarine {

/// A line of the legend, the same for all logs: a box of that colour, the picture of the rows of
/// that type, and the words.
struct LegendEntry {
    std::string_view label;
    std::uint32_t colour;
    int icon;
};

inline constexpr LegendEntry kErrorLegend{"Errors", kRed, kIconError};
// KEEP(graph-draws-warnings-blue): the word and the colour of the summary's charts would not fit
// the legend beside this one.
inline constexpr LegendEntry kWarningLegend{"Alerts", kBlue, kIconWarning};
inline constexpr LegendEntry kInformationLegend{"Informations", kGreen, kIconInformation};
inline constexpr LegendEntry kFailureLegend{"Audit Failures", kRed, kIconAuditFailure};
inline constexpr LegendEntry kSuccessLegend{"Audit Success", kGreen, kIconAuditSuccess};
inline constexpr std::array kGraphLegend = {kErrorLegend, kWarningLegend, kInformationLegend,
                                            kFailureLegend, kSuccessLegend};

struct GraphForm : FormBase {
    static constexpr FormId kId{"Form5"};

    GraphForm() { caption = "Grahpical Analysis:"; }  // sic

    Chart pie;
    Frame Frame2{"Show ...."};
    OptionButton Option1{"System Log", true};
    OptionButton Option2{"Application Log"};
    OptionButton Option3{"Security Log"};
    OptionButton Option5{"Bar Graph", true};
    OptionButton Option4{"Pie chart"};
    Frame Frame1{"Legend"};

    /// Shows every control that the window has a widget for.
    template <class Visitor>
    void visit(Visitor&& see) {
        see("pie", pie);
        see("Frame2", Frame2);
        see("Option1", Option1);
        see("Option2", Option2);
        see("Option3", Option3);
        see("Option5", Option5);
        see("Option4", Option4);
        see("Frame1", Frame1);
    }
};

}  // namespace tessarine
