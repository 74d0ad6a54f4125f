// Form2, the details of one event.
#pragma once

#include <cstdint>

#include "core/controls.h"
#include "core/form.h"
#include "core/status_bar.h"

namespace tessarine {

struct EventDetailsForm : FormBase {
    static constexpr FormId kId{"Form2"};

    EventDetailsForm() { caption = "Event Details"; }

    Label lblType, lbldate, lblTime, lblSource, lblEventID, lblUser, lblComputer;
    TextBox txtDesc{.locked = true};
    Image Image1;
    CommandButton CmdUp{"", "Scroll up"};
    CommandButton CmdDown{"", "Scroll down"};
    CommandButton cmdClipboard{"", "Set clipboard"};
    CommandButton Command2{"", "Lookup In Microsoft Knowledge Base"};
    CommandButton Command1{"Close"};
    StatusBar st1{1};

    // Which row of which table the form shows.
    TextBox TxtListName{.visible = false};   ///< "system", "application" or "security"
    TextBox txtListSize{.visible = false};   ///< rows of the table when the form was opened
    TextBox txtListIndex{.visible = false};  ///< position of the row, from 1
    std::int16_t position = 0;               ///< the same; what CmdUp and CmdDown move

    template <class Visitor>
    void visit(Visitor&& see) {
        see("lblType", lblType);
        see("lbldate", lbldate);
        see("lblTime", lblTime);
        see("lblSource", lblSource);
        see("lblEventID", lblEventID);
        see("lblUser", lblUser);
        see("lblComputer", lblComputer);
        see("txtDesc", txtDesc);
        see("Image1", Image1);
        see("CmdUp", CmdUp);
        see("CmdDown", CmdDown);
        see("cmdClipboard", cmdClipboard);
        see("Command2", Command2);
        see("Command1", Command1);
        see("st1", st1);
    }
};

}  // namespace tessarine
