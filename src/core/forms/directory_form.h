// frmADS, the objects of a directory as hosts.
#pragma once

#include "core/controls.h"
#include "core/form.h"
#include "core/list/list_control.h"
#include "core/status_bar.h"

namespace tessarine {

struct DirectoryForm : FormBase {
    static constexpr FormId kId{"frmADS"};

    DirectoryForm() { caption = "Enumerate ADS"; }

    Frame DetailsFrame{"Active Directory Details"};
    Label DomainLabel{"Domain/Realm",
                      "The domain corp.example.com is the two texts corp and example, DC=com"};
    TextBox txtDC1{.tool_tip = "your domain name.."};
    TextBox txtDC2{.tool_tip = ".net,.com..."};
    CommandButton Command1{"Enum OUs/CNs", "enumerate active directory..."};
    Label ContainersLabel{"Available Containers/OU"};
    ComboBox Combo1{.tool_tip =
                        "Each enumeration adds its names to those that are there. Another name can "
                        "be typed; a comma in a name takes a backslash in front of it"};
    Frame KindFrame{.tool_tip = "choose if the selection is an container or an ou..."};  // sic
    OptionButton optOU{"Organizational Unit"};
    OptionButton optCont{"Container"};
    CommandButton Command2{"Enumerate>>", "Lists what has a CN, and no units within the unit"};
    ListControl ListView1{{{"Available Objects"}}};
    CommandButton Command3{"Add Listed Objects As Hosts",
                           "Adds all of them, also those that are hosts of the list already"};
    StatusBar st1{1};

    template <class Visitor>
    void visit(Visitor&& see) {
        see("DetailsFrame", DetailsFrame);
        see("DomainLabel", DomainLabel);
        see("txtDC1", txtDC1);
        see("txtDC2", txtDC2);
        see("Command1", Command1);
        see("ContainersLabel", ContainersLabel);
        see("Combo1", Combo1);
        see("KindFrame", KindFrame);
        see("optOU", optOU);
        see("optCont", optCont);
        see("Command2", Command2);
        see("ListView1", ListView1);
        see("Command3", Command3);
        see("st1", st1);
    }
};

}  // namespace tessarine
