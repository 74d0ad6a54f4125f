#include "viewer/event_details.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "core/console_state.h"
#include "core/counter16.h"
#include "core/error_regime.h"
#include "core/log_facts.h"
#include "core/text.h"
#include "core/type_words.h"
#include "platform/clipboard.h"
#include "platform/form_windows.h"
#include "tables/row_fields.h"
#include "viewer/event_lookup.h"

namespace tessarine {
namespace {

// The pictures of Form2 by type, from 1: an order of its own.
constexpr std::array kPictureTypes = {kWarning, kError, kInformation, kAuditSuccess, kAuditFailure};
constexpr std::size_t kPlainTypes = 3;

/// How the form is opened from a table.
struct Opener {
    std::string_view caption;
    std::size_t picture_types = kPictureTypes.size();
    bool ignores_errors = false;
};

// KEEP(audit-failure-opens-without-a-picture): with all five types on the application log an audit
// failure would have its picture before the first step of CmdUp or CmdDown.
constexpr std::array kOpenerOfLog = {
    Opener{"System Log: "},
    Opener{"Application Log ", kPlainTypes, true},
    Opener{"Security Log: "},
};

void choose_picture(EventDetailsForm& form, std::size_t known_types) {
    const std::string type = lower_text(form.lblType.caption);
    for (std::size_t i = 0; i < known_types; ++i)
        if (type == kPictureTypes[i].english || type == lower_text(kPictureTypes[i].german))
            form.Image1.picture = static_cast<int>(i) + 1;
}

struct FieldLabel {
    Field name;
    Label EventDetailsForm::*label;
};

constexpr std::array kFieldLabels = {
    FieldLabel{Field::Type, &EventDetailsForm::lblType},
    FieldLabel{Field::Date, &EventDetailsForm::lbldate},
    FieldLabel{Field::Time, &EventDetailsForm::lblTime},
    FieldLabel{Field::Source, &EventDetailsForm::lblSource},
    FieldLabel{Field::Event, &EventDetailsForm::lblEventID},
    FieldLabel{Field::User, &EventDetailsForm::lblUser},
    FieldLabel{Field::Computer, &EventDetailsForm::lblComputer},
};

void show_row(EventDetailsForm& form, const ListControl& table, int position, ErrorRegime errors) {
    for (const FieldLabel& each : kFieldLabels)
        errors.run([&] { (form.*each.label).caption = field(table.row(position), each.name); });
    errors.run([&] {
        form.txtDesc.text = replace_text(field(table.row(position), Field::Message), "~", "\r\n");
    });
}

ListControl* table_of(Console& console, const EventDetailsForm& form) {
    for (const LogFacts& facts : kLogFacts)
        if (form.TxtListName.text == facts.word) return &(console.Form1.*facts.table);
    return nullptr;
}

// KEEP(details-stop-at-row-32767): a wider number would go on to the rows after that one, where the
// console is to end in an overflow.
std::int16_t position_number(int position) {
    return count16(position);
}

// Makes `position` the one selected row, and brings it into view.
void select(ListControl& table, int position) {
    table.row(table.selected_item()).set_selected(false);
    table.row(position).set_selected(true);
    table.set_selected_item(position);
    table.scroll_to(position);
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

void open_event(Console& console, EventLog log) {
    const ListControl& table = table_of(console.Form1, log);
    const int position = table.selected_item();
    if (table.count() == 0) return;
    const Opener& opener = kOpenerOfLog[static_cast<std::size_t>(log)];
    ErrorRegime errors;
    if (opener.ignores_errors) errors.ignore_from_here();
    EventDetailsForm& form = console.Form2.get();
    show_row(form, table, position, errors);
    form.txtListIndex.text = std::to_string(position);
    form.txtListSize.text = std::to_string(table.count());
    form.TxtListName.text = facts_of(log).word;
    form.caption = opener.caption;
    choose_picture(form, opener.picture_types);
    console.platform.form_windows.show_modal(console.Form2.kId);
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
