// Form4, the custom audit: which logs, from which day on or of which day.
#pragma once

#include "core/controls.h"
#include "core/form.h"

namespace tessarine {

struct CustomAuditForm : FormBase {
    static constexpr FormId kId{"Form4"};

    CustomAuditForm() { caption = "Custom Audit"; }

    Label lblHostName;  ///< mode: "selected", "all", or a host's name
    CheckBox ChkSys{"System Events", {}, 1};
    CheckBox ChkApp{"Application Events", {}, 1};
    CheckBox ChkSec{"Security Events", {}, 1};
    MonthView MonthView1;
    CheckBox chkSpecificDate{"Specific Date"};
    Label Label1;
    CommandButton Command1{"OK"};

    template <class Visitor>
    void visit(Visitor&& see) {
        see("lblHostName", lblHostName);
        see("ChkSys", ChkSys);
        see("ChkApp", ChkApp);
        see("ChkSec", ChkSec);
        see("MonthView1", MonthView1);
        see("chkSpecificDate", chkSpecificDate);
        see("Label1", Label1);
        see("Command1", Command1);
    }
};

}  // namespace tessarine
