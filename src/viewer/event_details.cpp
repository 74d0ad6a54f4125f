#include "viewer/event_details.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string>
#include <string_view>

#include "core/console_state.h"
#include "core/counter16.h"
#include "core/error_regime.h"
#include "core/text.h"
#include "core/type_words.h"
#include "platform/clipboard.h"
#include "platform/form_windows.h"
#include "store/event_record.h"
#include "viewer/event_lookup.h"

namespace tessarine {
namespace {

// The pictures of Form2 by type, from 1: an order of its own.
constexpr std::array kPictureTypes = {kWarning, kError, kInformation, kAuditSuccess, kAuditFailure};
constexpr std::size_t kPlainTypes = 3;

/// A table from which the form can be opened.
struct Opener {
    std::string_view list_name;
    std::string_view caption;
    ListControl MainForm::*table;
    std::size_t picture_types = kPictureTypes.size();
    bool ignores_errors = false;
};

// KEEP(audit-failure-opens-without-a-picture): the application log's opener knows three types. All
// five look right, but there an audit failure gets its picture from CmdUp and CmdDown alone.
constexpr std::array kOpeners = {
    Opener{"system", "System Log: ", &MainForm::SystemList},
    Opener{"application", "Application Log ", &MainForm::ApplicationList, kPlainTypes, true},
    Opener{"security", "Security Log: ", &MainForm::SecurityList},
};

void choose_picture(EventDetailsForm& form, std::size_t known_types) {
    const std::string type = lower_text(form.lblType.caption);
    for (std::size_t i = 0; i < known_types; ++i)
        if (type == kPictureTypes[i].english || type == lower_text(kPictureTypes[i].german))
            form.Image1.picture = static_cast<int>(i) + 1;
}

// The labels of the sub-items, in their order from 1.
constexpr std::array kFieldLabels = {&EventDetailsForm::lbldate,   &EventDetailsForm::lblTime,
                                     &EventDetailsForm::lblSource, &EventDetailsForm::lblEventID,
                                     &EventDetailsForm::lblUser,   &EventDetailsForm::lblComputer};

void show_row(EventDetailsForm& form, ListControl& table, int position, ErrorRegime errors) {
    errors.run([&] { form.lblType.caption = table.row(position).text(); });
    for (std::size_t i = 0; i < kFieldLabels.size(); ++i)
        errors.run([&] {
            (form.*kFieldLabels[i]).caption = table.row(position).sub_item(static_cast<int>(i) + 1);
        });
    errors.run([&] {
        const auto message = table.row(position).sub_item(static_cast<int>(Field::Message));
        form.txtDesc.text = replace_text(message, "~", "\r\n");
    });
}

void open(Console& console, const Opener& opener) {
    ListControl& table = console.Form1.*opener.table;
    const int position = table.selected_item();
    if (table.count() == 0 || position == 0) return;
    ErrorRegime errors;
    if (opener.ignores_errors) errors.ignore_from_here();
    EventDetailsForm& form = console.Form2.get();
    show_row(form, table, position, errors);
    form.txtListIndex.text = std::to_string(position);
    form.txtListSize.text = std::to_string(table.count());
    form.TxtListName.text = opener.list_name;
    form.caption = opener.caption;
    choose_picture(form, opener.picture_types);
    console.platform.form_windows.show_modal(FormId::Form2);
}

ListControl* table_of(Console& console, const EventDetailsForm& form) {
    const auto opener = std::find_if(kOpeners.begin(), kOpeners.end(), [&](const Opener& each) {
        return form.TxtListName.text == each.list_name;
    });
    return opener == kOpeners.end() ? nullptr : &(console.Form1.*opener->table);
}

// KEEP(details-stop-at-row-32767): a wider number would go on to the rows after that one, where the
// console is to end in an overflow.
std::int16_t position_number(int position) {
    return count16(position);
}

// Makes `position` the one selected row, and brings it into view.
void select(ListControl& table, int position) {
    if (table.selected_item() > 0) table.row(table.selected_item()).set_selected(false);
    table.row(position).set_selected(true);
    table.set_selected_item(position);
    table.scrolled_to = position;
}

void step(Console& console, int direction, bool at_edge, const char* edge_text) {
    EventDetailsForm& form = console.Form2.get();
    ListControl* table = table_of(console, form);
    if (table != nullptr && at_edge) {
        form.st1.set_text(1, edge_text);
    } else if (table != nullptr) {
        form.position = position_number(form.position + direction);
        show_row(form, *table, form.position, ErrorRegime());
        form.txtListIndex.text = std::to_string(form.position);
        select(*table, form.position);
        form.st1.set_text(1, "");
    }
    choose_picture(form, kPictureTypes.size());
}

std::string without_colons(std::string text) {
    text.erase(std::remove(text.begin(), text.end(), ':'), text.end());
    return text;
}

}  // namespace

void open_system_event(Console& console) {
    open(console, kOpeners[0]);
}

void open_application_event(Console& console) {
    open(console, kOpeners[1]);
}

void open_security_event(Console& console) {
    open(console, kOpeners[2]);
}

void activate_event_details(Console& console) {
    EventDetailsForm& form = console.Form2.get();
    form.position = position_number(std::stoi("0" + form.txtListIndex.text));
}

void CmdUp(Console& console) {
    step(console, -1, console.Form2->position <= 1, "Begining of Log");  // sic
}

void CmdDown(Console& console) {
    const EventDetailsForm& form = console.Form2.get();
    step(console, +1, std::stoi("0" + form.txtListSize.text) <= form.position, "End of Log");
}

void copy_event_to_clipboard(Console& console) {
    const EventDetailsForm& form = console.Form2.get();
    std::string text;
    const auto add_line = [&text](const char* head, const std::string& value) {
        text.append(head).append(value).append("\r\n");
    };
    add_line("Host:\t\t", form.lblComputer.caption);
    add_line("Log:\t\t", without_colons(form.caption));
    add_line("Type:\t\t", form.lblType.caption);
    add_line("Date:\t\t", form.lbldate.caption + " " + form.lblTime.caption);
    add_line("Source:\t\t", form.lblSource.caption);
    add_line("Event Code:\t", form.lblEventID.caption);
    add_line("Username:\t", form.lblUser.caption);
    text.append("Message:\t").append(form.txtDesc.text);
    console.platform.clipboard.clear();
    console.platform.clipboard.set_text(text);
}

void look_up_shown_event(Console& console) {
    const EventDetailsForm& form = console.Form2.get();
    LookupEvent(console, form.lblEventID.caption, form.lblSource.caption);
}

void close_event_details(Console& console) {
    console.Form2.unload();
}

}  // namespace tessarine
