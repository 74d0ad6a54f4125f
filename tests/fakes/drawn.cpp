#include "fakes/drawn.h"

#include <gtest/gtest.h>

#include <sstream>

#include "core/code_page.h"
#include "core/menus.h"
#include "core/regional_text.h"
#include "core/text.h"
#include "fakes/rig.h"

namespace tessarine::fakes {
namespace {

std::string shown(std::string_view text) {
    std::string plain = replace_text(replace_text(text, "\r\n", "~"), "\n", "~");
    for (char& character : plain)
        if (static_cast<unsigned char>(character) < ' ') character = '?';
    return to_utf8(plain);
}

std::string text_of(const ListControl& list) {
    std::string text = "\n";
    for (int number = 1; number <= list.count(); ++number) {
        const ListControl::ConstRow row = list.row(number);
        const auto mark = [&](int column) { return row.fore_colour(column) == kRed ? "!" : ""; };
        text += "  ";
        // The first row is the usual one.
        if (list.selected_item() == number && number > 1) text += '>';
        if (row.selected()) text += '*';
        if (list.check_boxes) text += row.checked() ? "[x]" : "[ ]";
        text += std::to_string(row.small_icon()) + "|" + mark(0) + shown(row.text());
        for (int i = 1; i <= row.sub_item_count(); ++i) {
            const int icon = row.report_icon(i);
            text += "|";
            if (icon != 0) text += "[" + std::to_string(icon) + "]";
            text += mark(i) + shown(row.sub_item(i));
        }
        text += "\n";
    }
    return text;
}

std::string text_of(const StatusBar& bar) {
    std::string text = " ";
    for (int panel = 1; panel <= bar.panel_count(); ++panel)
        text += "[" + shown(bar.text(panel)) + "]";
    return text + "\n";
}

std::string text_of(const TabStrip& strip) {
    std::string text = " ";
    for (int i = 1; i <= static_cast<int>(strip.tabs.size()); ++i) {
        text += i == strip.selected ? "[*" : "[";
        text += strip.tab(i).caption;
        if (strip.tab(i).image != 0) text += "#" + std::to_string(strip.tab(i).image);
        text += "]";
    }
    return text + "\n";
}

std::string text_of(const ProgressBar& bar) {
    return " " + std::to_string(bar.value()) + "/" + std::to_string(bar.maximum()) +
           (bar.visible() ? "\n" : " hidden\n");
}

std::string text_of(const TextBox& box) {
    return " \"" + shown(box.text) + "\"\n";
}
std::string text_of(const SecretBox& box) {
    return " \"" + shown(box.text.text()) + "\"\n";
}
std::string text_of(const UpDown& arrows) {
    return " " + std::to_string(arrows.value) + "\n";
}
std::string text_of(const ListBox& list) {
    std::string text = "\n";
    for (const std::string& item : list.items) text += "  " + shown(item) + "\n";
    return text;
}
std::string text_of(const ComboBox& box) {
    std::string text = " \"" + shown(box.text) + "\"\n";
    for (const std::string& item : box.items) text += "  " + shown(item) + "\n";
    return text;
}
std::string text_of(const Label& label) {
    return " \"" + shown(label.caption) + "\"\n";
}
std::string text_of(const CheckBox& box) {
    return " " + std::to_string(box.value) + "\n";
}
std::string text_of(const OptionButton& button) {
    return button.value ? " on\n" : " off\n";
}
std::string text_of(const Frame& frame) {
    return " \"" + shown(frame.caption) + "\"\n";
}
std::string text_of(const Chart& chart) {
    return " " + drawn(chart) + "\n";
}
std::string text_of(const CommandButton& button) {
    return " \"" + shown(button.caption) + "\"\n";
}
std::string text_of(const MenuEntry& entry) {
    std::string text;
    if (entry.checked) text += " checked";
    if (!entry.enabled) text += " disabled";
    return text + "\n";
}

std::string text_of(const Image& image) {
    return " " + std::to_string(image.picture) + "\n";
}
std::string text_of(const MonthView& view) {
    return " " + text_of_date(view.value) + "\n";
}

// Every control of Form1, the hidden ones and the menus' entries among them.
template <class Visitor>
void visit_all(MainForm& form, const Visitor& see) {
    form.visit(see);
    see("lblReturn", form.lblReturn);
    see("AuditStat", form.AuditStat);
    see("lblselectedTab", form.lblselectedTab);
    see("lblselectedTab2", form.lblselectedTab2);
    see("List1Index", form.List1Index);
    for (const MenuTableRow& row : kMenuTable)
        if (row.entry != nullptr) see(row.name, form.*(row.entry));
}

// Every control that the dialog has a widget for.
template <class Dialog, class Visitor>
void visit_all(Dialog& form, const Visitor& see) {
    form.visit(see);
}

// The form if there is something to draw of it; the main form holds its last state for ever.
MainForm* to_draw(MainForm& form) {
    return &form;
}

template <class Dialog>
Dialog* to_draw(Form<Dialog>& form) {
    return form.if_loaded();
}

// Name and text of the control that is wanted; nothing when there is none.
std::string line_of(MainForm& form, const std::string& wanted) {
    std::string line;
    visit_all(form, [&](std::string_view name, auto& control) {
        if (name == wanted) line = wanted + ":" + text_of(control);
    });
    return line;
}

}  // namespace

std::string drawn(Rig& rig, std::string_view names) {
    std::string result = "\n";
    std::istringstream words{std::string(names)};
    for (std::string name; words >> name;) {
        const std::string line = line_of(rig.console.Form1, name);
        if (line.empty()) ADD_FAILURE() << "Form1 has no control " << name;
        result += line;
    }
    return result;
}

std::vector<std::string> drawn_lines(Console& console) {
    std::vector<std::string> lines;
    std::string form_name;
    const auto see = [&](std::string_view name, auto& control) {
        std::istringstream rows(text_of(control));
        for (std::string row; std::getline(rows, row);)
            lines.push_back(form_name + "." + std::string(name) + ":" + row);
    };
    console.visit_forms([&](auto& form) {
        form_name = form.kId.name;
        auto* loaded = to_draw(form);
        if (loaded == nullptr) return;
        lines.push_back(form_name + ": " + loaded->caption);
        visit_all(*loaded, see);
    });
    return lines;
}

std::string drawn(const Chart& chart) {
    std::string text = chart.type == ChartType::Pie ? "pie" : "bars";
    for (std::size_t i = 0; i < chart.points.size(); ++i)
        text += " " + chart.series[i].name + "=" + std::to_string(chart.points[i]);
    return text;
}

}  // namespace tessarine::fakes
