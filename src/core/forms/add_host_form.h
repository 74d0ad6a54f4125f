// Form6, adding hosts by hand.
#pragma once

#include "core/controls.h"
#include "core/form.h"
#include "core/status_bar.h"

namespace tessarine {

struct AddHostForm : FormBase {
    static constexpr FormId kId{"Form6"};

    AddHostForm() { caption = "Add Host"; }

    Frame HostFrame{"Add Host"};
    TextBox AddHost;
    CommandButton Command1{"Add"};
    StatusBar St2{1};

    template <class Visitor>
    void visit(Visitor&& see) {
        see("HostFrame", HostFrame);
        see("AddHost", AddHost);
        see("Command1", Command1);
        see("St2", St2);
    }
};

}  // namespace tessarine
