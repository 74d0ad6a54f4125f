// AboutForm, what program this is.
#pragma once

#include "core/controls.h"
#include "core/form.h"

namespace tessarine {

struct AboutForm : FormBase {
    static constexpr FormId kId{"AboutForm"};

    AboutForm() { caption = "About Tessarine"; }

    TextBox Text1{.locked = true};

    template <class Visitor>
    void visit(Visitor&& see) {
        see("Text1", Text1);
    }
};

}  // namespace tessarine
