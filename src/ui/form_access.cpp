#include "ui/form_access.h"

namespace tessarine {

std::string_view form_name(FormId id) {
    switch (id) {
        case FormId::Form1:
            return "Form1";
        case FormId::Form2:
            return "Form2";
        case FormId::Form3:
            return "Form3";
        case FormId::Form4:
            return "Form4";
        case FormId::Form5:
            return "Form5";
        case FormId::Form6:
            return "Form6";
        case FormId::Form7:
            return "Form7";
        case FormId::frmADS:
            return "frmADS";
        case FormId::ConCheck:
            return "ConCheck";
        case FormId::AboutForm:
            return "AboutForm";
    }
    return {};
}

void unload_form(Console& console, FormId id) {
    switch (id) {
        case FormId::Form2:
            console.Form2.unload();
            break;
        case FormId::Form4:
            console.Form4.unload();
            break;
        case FormId::Form5:
            console.Form5.unload();
            break;
        case FormId::Form6:
            console.Form6.unload();
            break;
        case FormId::ConCheck:
            console.ConCheck.unload();
            break;
        case FormId::AboutForm:
            console.AboutForm.unload();
            break;
        default:
            break;  // The main form ends with the program; the others have no window yet.
    }
}

}  // namespace tessarine
