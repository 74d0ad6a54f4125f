#include "hosts/network_dialog.h"

#include "core/console_state.h"
#include "core/counter16.h"
#include "core/icons.h"
#include "hosts/enumnet.h"
#include "hosts/host_list.h"
#include "platform/dialogs.h"
#include "platform/form_windows.h"

namespace tessarine {
namespace {

// The form can be closed while events pass, and is then loaded anew by the next touch.
void say(Console& console, const std::string& text) {
    console.Form7->st1.set_text(1, text);
}

void add_groups(Console& console) {
    const ServerNames names = GetServerNames(console, "", kServerTypeDomainEnum);
    const int end = count16(names.upper_bound());
    for (int i = 0; i < end; ++i) {
        say(console, "Please wait ..");
        console.Form7->ListView1.add_row(names[i], kNoIcon);
    }
    say(console, "");
}

void add_servers(Console& console, const std::string& group) {
    const ServerNames names = GetServerNames(console, group, kServerTypeAll);
    const int end = count16(names.upper_bound());
    // KEEP(enumerated-hosts-stand-as-reported): upper case and a "-", as all other ways into the
    // list have them, or one row a host, would change the rows.
    for (int i = 0; i < end; ++i)
        console.Form1.ListView1.add_row(names[i], kIconHost).add_sub_item("");
}

}  // namespace

void show_network(Console& console) {
    console.Form7.get();
    console.platform.form_windows.show_modal(console.Form7.kId);
    // Whatever has touched the form after it was closed: each opening lists the groups afresh.
    console.Form7.unload();
}

void activate_network(Console& console) {
    say(console, "Enumerating Workgroup..");
    console.mouse_pointer = kPointerHourglass;
    console.platform.form_windows.let_events_pass();
    CreatDomainList(console);
    console.mouse_pointer = kPointerDefault;
    // KEEP(enumeration-error-is-cleared): leaving it out would keep "Enumeration error.." in sight.
    say(console, "");
}

void CreatDomainList(Console& console) {
    try {
        add_groups(console);
    } catch (const RuntimeError& error) {
        if (!error.description().empty())
            console.platform.dialogs.message_box(
                "Error: " + error.description() + ". Please retry..", MessageStyle::Critical);
    }
    if (console.Form7->ListView1.count() == 0) say(console, "Enumeration error..");
}

void enumerate_ticked_groups(Console& console) {
    const int groups = count16(console.Form7->ListView1.count());
    if (groups == 0) {
        say(console, "list empty...");
        return;
    }
    console.mouse_pointer = kPointerHourglass;
    // KEEP(enumerating-empties-the-host-list-first): waiting for a group that has hosts would keep
    // the old list where none is ticked or all of them fail.
    console.Form1.ListView1.clear();
    console.Form1.st1.set_text(1, "");
    for (int i = 1; i <= groups; ++i) {
        // A form that was closed meanwhile, and loaded anew, has no rows.
        if (i > console.Form7->ListView1.count()) break;
        const auto row = console.Form7->ListView1.row(i);
        if (!row.checked()) continue;
        const std::string name(row.text());
        say(console, "Enumerating " + name);
        CreateHostList(console, name);
        say(console, "");
    }
    show_host_count(console);
    say(console, "Enumeration complete..");
    console.mouse_pointer = kPointerDefault;
}

void CreateHostList(Console& console, const std::string& strdom) {
    try {
        add_servers(console, strdom);
    } catch (const RuntimeError& error) {
        // KEEP(a-failing-group-is-passed-over): a message would tell which group gave no hosts.
        if (error.number() == ErrorNumber::SubscriptOutOfRange) return;
        console.platform.dialogs.message_box(
            std::to_string(static_cast<int>(error.number())) + " - " + error.description(),
            MessageStyle::Exclamation);
    }
}

}  // namespace tessarine
