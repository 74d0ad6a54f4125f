#include "hosts/directory_dialog.h"

#include <string>

#include "core/console_state.h"
#include "core/host_rows.h"
#include "core/icons.h"
#include "core/text.h"
#include "platform/directory_service.h"
#include "platform/form_windows.h"

namespace tessarine {
namespace {

std::string domain_of(const DirectoryForm& form) {
    return form.txtDC1.text + ", DC=" + form.txtDC2.text;
}

// KEEP(directory-paths-are-joined): a name with a backslash in front of its comma, as a user types
// it, would get a second one, and two texts could not be a domain of three parts.
std::string top_path(const DirectoryForm& form) {
    return "LDAP:// DC=" + domain_of(form);
}

std::string path_of_selection(const DirectoryForm& form) {
    const char* kind = form.optCont.value ? "CN=" : "OU=";
    return std::string("LDAP://") + kind + form.Combo1.text + ", DC=" + domain_of(form);
}

void show_error(DirectoryForm& form, const std::string& description) {
    form.st1.set_text(1, replace_text(description, "Automation error", "Error.."));
}

// Calls `use` with each child of the object of that path. Returns the words of the error that ends
// the walk early; empty for none.
template <class Use>
std::string for_each_child(Console& console, const std::string& path, Use use) {
    try {
        const auto object = console.platform.directory_service.bind(path);
        for (DirectoryChild child; object->next(child);) use(child);
        return {};
    } catch (const RuntimeError& error) {
        return error.description();
    }
}

void begin_wait(Console& console) {
    console.frmADS->st1.set_text(1, "Please wait...");
    console.mouse_pointer = kPointerHourglass;
}

}  // namespace

void show_directory(Console& console) {
    console.frmADS.get();
    console.platform.form_windows.show_modal(console.frmADS.kId);
}

void list_containers(Console& console) {
    DirectoryForm& form = console.frmADS.get();
    begin_wait(console);
    // KEEP(containers-pile-up): clearing Combo1 first would drop the names of another domain.
    const std::string error =
        for_each_child(console, top_path(form), [&](const DirectoryChild& child) {
            const std::string& name = child.CN.empty() ? child.OU : child.CN;
            if (!name.empty()) form.Combo1.items.push_back(name);
        });
    console.mouse_pointer = kPointerDefault;
    show_error(form, error);
}

void list_objects(Console& console) {
    DirectoryForm& form = console.frmADS.get();
    form.ListView1.clear();
    if (!form.optCont.value && !form.optOU.value) {
        form.st1.set_text(
            1,
            "Please choose if this selection is either an OU or an Container in the realm");  // sic
        return;
    }
    begin_wait(console);
    const std::string error =
        for_each_child(console, path_of_selection(form), [&](const DirectoryChild& child) {
            // KEEP(units-are-no-objects): taking the OU as well would list units as hosts.
            if (!child.CN.empty()) form.ListView1.add_row(child.CN, 0);
        });
    console.mouse_pointer = kPointerDefault;
    form.st1.set_text(1, std::to_string(form.ListView1.count()) + " objects found");
    if (!error.empty()) show_error(form, error);
}

// KEEP(directory-adds-hosts-again): a test for names that are there would leave rows out.
void add_listed_objects(Console& console) {
    const ListControl& objects = console.frmADS->ListView1;
    const int rows = count16(objects.count());
    for (int row = 1; row <= rows; ++row) {
        const std::string name = upper_text(objects.row(row).text());
        if (!name.empty()) console.Form1.ListView1.add_row(name, kIconHost).add_sub_item("");
    }
}

}  // namespace tessarine
