// Form7, the groups of the Windows network.
#pragma once

#include "core/controls.h"
#include "core/form.h"
#include "core/list/list_control.h"
#include "core/status_bar.h"

namespace tessarine {

struct NetworkForm : FormBase {
    static constexpr FormId kId{"Form7"};

    NetworkForm() {
        caption = "Enumerate Network...";
        ListView1.check_boxes = true;
        ListView1.tool_tip = "Tick the groups whose hosts are wanted, by a click or the space bar";
    }

    ListControl ListView1{{{"Workgroups and Domains"}}};
    CommandButton Command1{"Enumerate Workgroup",
                           "Replaces the host list by the hosts of the ticked groups"};
    StatusBar st1{1};

    template <class Visitor>
    void visit(Visitor&& see) {
        see("ListView1", ListView1);
        see("Command1", Command1);
        see("st1", st1);
    }
};

}  // namespace tessarine
