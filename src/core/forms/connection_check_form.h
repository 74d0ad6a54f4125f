// ConCheck, the test of whether a host listens.
#pragma once

#include "core/controls.h"
#include "core/form.h"

namespace tessarine {

struct ConnectionCheckForm : FormBase {
    static constexpr FormId kId{"ConCheck"};

    Label lblHostName{"lblHostName"};
    Label Label1{"Attempting"};
    Label Label2{"Status:"};
    Label lblReturn{"Trying"};  ///< "Trying", "connected" or "port down"
    Timer Timer1{.interval = 3000, .enabled = true};

    template <class Visitor>
    void visit(Visitor&& see) {
        see("lblHostName", lblHostName);
        see("Label1", Label1);
        see("Label2", Label2);
        see("lblReturn", lblReturn);
    }
};

}  // namespace tessarine
