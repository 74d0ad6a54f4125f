// What each event of the console's table does.
#include "app/events.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <sstream>

#include "chrome/start_up.h"
#include "core/text.h"
#include "fakes/drawn.h"
#include "fakes/golden.h"
#include "fakes/rig.h"

namespace tessarine::fakes {
namespace {

using Lines = std::vector<std::string>;

void fill(ListControl& list, const std::string& mark, int icon = 3) {
    for (const char* code : {"1", "2"}) {
        ListControl::Row row = list.add_row(mark + code, icon);
        for (const char* field : {"d", "t", "source", "code", "user", "computer", "message"})
            row.add_sub_item(mark + field + code);
    }
    list.set_selected_item(2);
}

void fill_settings(SettingsForm& settings) {
    settings.TabStrip1.selected = 3;
    settings.UpDown1.value = -1;
    settings.UpDown2.value = 7;
    settings.UpDown3.value = 61;
    for (TextBox* field : {&settings.txtRecipient, &settings.txtSender, &settings.txtSmtpServer,
                           &settings.TxtUsername, &settings.txtHosts})
        field->text = "typed";
}

// A console in which nothing is like another, so that a wrong routine leaves other traces: three
// hosts, the second one marked; logs, tables and lists that differ; every dialog open.
class BusyConsole {
  public:
    BusyConsole() {
        rig.files.put("/app/alertpatterns.txt", "7\r\n8\r\n");
        rig.files.put("/app/ignorelist.txt", "5\r\n6\r\n");
        rig.files.put("/lists/hosts.txt", "pc9\r\n");
        for (const char* log : {"system", "application", "security"})
            rig.files.put(std::string("/app/Data/PC2_") + log + ".log",
                          std::string("audit failure|d|t|") + log + "|7|u|c|x\r\n");
        rig.directory.containers["LDAP:// DC=example, DC=net"].children = {{"Users", ""}};
        rig.directory.containers["LDAP://CN=Typed, DC=example, DC=net"].children = {{"pc8", ""}};
        rig.run(start_up);
        for (const char* name : {"PC1", "PC2", "PC3"}) {
            rig.network.hosts[name].records = {{.LogFile = "System"}};
            rig.probe.answers[name] = kConnects;
        }
        rig.browse.network = {{"LAB", {{.name = "LABSRV"}}}};
        MainForm& form = rig.console.Form1;
        rig.list_hosts({"PC1", "PC2", "PC3"});
        Rig::select(form.ListView1, {2});
        fill(form.SystemList, "sys");
        fill(form.ApplicationList, "app", 4);
        fill(form.SecurityList, "sec");
        fill(form.ListView2, "list2-");
        fill(form.ListView3, "list3-");
        fill(form.ListView4, "list4-");
        for (auto [list, row] : {std::pair{&form.AlertList, 1}, {&form.IgnoreList, 2}})
            list->set_selected_item(row);
        form.TxtAlert.text = "8";
        form.txtIgnore.text = "5";
        form.TxtSearch.text = "security";
        form.txtSearchHist.text = "before";
        for (CheckBox* box : {&form.Check3, &form.Check4}) box->value = 1;
        for (Chart* chart : {&form.sysPie, &form.appPie, &form.SecPie}) chart->type = ChartType{0};
        form.lblselectedTab.caption = " Application Log";
        form.lblselectedTab2.caption = "list3";
        open_dialogs(rig.console);
        rig.dialogs.answer_next(MessageAnswer::Yes);
        rig.dialogs.choose_file_next("/lists/hosts.txt");
        rig.dialogs.choose_file_next("/lists/other.txt");
        rig.windows.when_shown(EventDetailsForm::kId, [this](Console& at) {
            note("Form2 for " + at.Form2->TxtListName.text + ", " + at.Form2->lblType.caption);
            at.Form2.unload();
        });
        rig.windows.when_shown(CustomAuditForm::kId, [this](Console& at) {
            note("Form4 for " + at.Form4->lblHostName.caption);
            at.Form4.unload();
        });
        rig.windows.when_shown(GraphForm::kId, [this](Console& at) {
            note("Form5: " + drawn(at.Form5->pie));
            at.Form5.unload();
        });
        close_when_shown(rig.console.Form3);
        close_when_shown(rig.console.Form6);
        close_when_shown(rig.console.Form7);
        close_when_shown(rig.console.frmADS);
        close_when_shown(rig.console.AboutForm);
        fill_settings(rig.console.Form3.get());
        form.TabStrip1.selected = 3;
        form.TabStrip2.selected = 4;
    }

    template <class Dialog>
    void close_when_shown(Form<Dialog>& form) {
        rig.windows.when_shown(form.kId, [this, &form](Console&) {
            note(std::string(form.kId.name));
            form.unload();
        });
    }

    // What can be seen of it, a line each.
    Lines seen() {
        Lines lines = drawn_lines(rig.console);
        MainForm& form = rig.console.Form1;
        lines.push_back("pages: " + std::to_string(form.host_tab) + std::to_string(form.main_tab));
        lines.push_back("focus: " + std::string(form.take_focus_wish()));
        for (const ListControl* list : {&form.SystemList, &form.ApplicationList})
            lines.push_back("sorted: " + std::to_string(list->sorted() ? list->sort_key() : -1));
        lines.push_back("sorted last: " + std::to_string(form.last_sorted_column));
        for (const Chart* chart : {&form.sysPie, &form.appPie, &form.SecPie})
            lines.push_back("chart type: " + std::to_string(static_cast<int>(chart->type)));
        if (const auto* graph = rig.console.Form5.if_loaded())
            lines.push_back("graph type: " + std::to_string(static_cast<int>(graph->pie.type)));
        if (const auto* details = rig.console.Form2.if_loaded())
            lines.push_back("position: " + std::to_string(details->position));
        if (const auto* settings = rig.console.Form3.if_loaded())
            lines.push_back("settings page: " + std::to_string(settings->settings_tab));
        for (const std::string& saved : rig.settings.written) lines.push_back("saved: " + saved);
        if (auto* audit = rig.console.Form4.if_loaded())
            lines.push_back("focus in Form4: " + std::string(audit->take_focus_wish()));
        lines.insert(lines.end(), notes_.begin(), notes_.end());
        for (const std::string& menu : rig.windows.menus) lines.push_back("menu: " + menu);
        for (const auto& message : rig.dialogs.messages) lines.push_back("box: " + message.text);
        for (const auto& choice : rig.dialogs.choices) lines.push_back("chooser: " + choice.title);
        for (const std::string& opened : rig.shell.opened) lines.push_back("opened: " + opened);
        for (const std::string& probed : rig.probe.attempts) lines.push_back("probed: " + probed);
        lines.push_back("clipboard: " + rig.clipboard.text);
        lines.push_back("workbook of " + std::to_string(rig.workbooks.written.size()) + " sheets");
        if (rig.program.ended) lines.push_back("the program ends");
        std::istringstream names(rig.files.names());
        for (std::string name; std::getline(names, name);)
            lines.push_back(name + ": " + rig.files.bytes(name).substr(0, 60));
        for (std::string& line : lines)
            line = replace_text(replace_text(line, "\r", ""), "\n", "~");
        return lines;
    }

    Rig rig{control_events()};

  private:
    void note(const std::string& shown) { notes_.push_back("shown: " + shown); }

    static void open_dialogs(Console& console) {
        console.Form2->TxtListName.text = "security";
        console.Form2->txtListSize.text = "3";
        console.Form2->position = 2;
        console.Form2->txtListIndex.text = "1";
        console.Form2->lblSource.caption = "shown source";
        fill(console.Form1.SecurityList, "third");
        console.Form4->lblHostName.caption = "PC2";
        console.Form4->MonthView1.value = {2004, 2, 29};
        console.Form5->pie.type = ChartType{0};
        console.Form6->AddHost.text = "";
        console.Form7->ListView1.add_row("LAB", 0).set_checked(true);
        console.ConCheck->lblReturn.caption = "connected";
        console.frmADS->txtDC1.text = "example";
        console.frmADS->txtDC2.text = "net";
        console.frmADS->Combo1.text = "Typed";
        console.frmADS->optCont.value = true;
        console.frmADS->ListView1.add_row("pc7", 0);
    }

    Lines notes_;
};

// Lines that are gone, marked "-", and lines that have come, "+". Of a form that goes as a whole
// the caption stands for all.
std::string changes(const Lines& before, const Lines& after) {
    std::string text;
    const auto add_missing = [&text](const Lines& lines, Lines others, const char* mark) {
        const auto has_form = [all = others](const std::string& line) {
            const std::string caption = line.substr(0, line.find_first_of(".:")) + ":";
            const bool of_form = line.front() != '/' && line.find('.') < line.find(':');
            return !of_form || std::any_of(all.begin(), all.end(), [&](const std::string& other) {
                return other.starts_with(caption);
            });
        };
        for (const std::string& line : lines) {
            if (!has_form(line)) continue;
            const auto same = std::find(others.begin(), others.end(), line);
            if (same == others.end())
                text += mark + line + "\n";
            else
                others.erase(same);
        }
    };
    add_missing(before, after, "- ");
    add_missing(after, before, "+ ");
    return text;
}

TEST(Events, EachRunsItsRoutine) {
    std::ostringstream actual;
    constexpr std::array kKinds = {"Click",    "MouseDown",   "EnterKey",  "GotFocus",
                                   "MouseUp",  "DoubleClick", "Timer",     "Activate",
                                   "CloseBox", "ColumnClick", "DateClick", "Change"};
    for (const ControlEvent& event : control_events()) {
        BusyConsole console;
        const Lines before = console.seen();
        console.rig.run(
            [&](Console& at) { event.routine(at, {.button = MouseButton::Right, .column = 5}); });
        actual << "## " << event.form.name << " " << event.control << " "
               << kKinds.at(static_cast<std::size_t>(event.kind)) << "\n"
               << changes(before, console.seen());
    }
    EXPECT_EQ(actual.str(), golden("events.txt"));
}

// In the busy console a menu opens for each of them.
TEST(Events, AReleaseOnATableIsAboutThatTable) {
    for (const char* name : {"SystemList", "ApplicationList", "SecurityList"}) {
        Rig rig;
        MainForm& form = rig.console.Form1;
        form.visit([name](std::string_view seen, auto& control) {
            if constexpr (std::is_same_v<std::remove_cvref_t<decltype(control)>, ListControl>)
                if (seen == name) fill(control, "row");
        });
        const ControlEvent* event =
            find_event(control_events(), MainForm::kId, name, EventKind::MouseUp);
        rig.run([event](Console& at) { event->routine(at, {.button = MouseButton::Right}); });
        EXPECT_EQ(rig.windows.menus.size(), 1u) << name;
    }
}

}  // namespace
}  // namespace tessarine::fakes
