// Form1, the main window: the host list, the event tables, the code lists, the menus, and the
// hidden fields that carry state between the console's routines.
#pragma once

#include <array>
#include <memory_resource>
#include <string>

#include "core/controls.h"
#include "core/form.h"
#include "core/forms/page_style.h"
#include "core/list/list_control.h"
#include "core/menu.h"
#include "core/status_bar.h"
#include "core/tab_strip.h"

namespace tessarine {

struct MainForm : FormBase {
    static constexpr FormId kId{"Form1"};

    // It is there from the start on and ends with the program.
    bool loaded = true;
    MainForm* if_loaded() { return loaded ? this : nullptr; }
    void unload() { loaded = false; }

    explicit MainForm(std::pmr::memory_resource* memory)
        : SystemList(event_columns(), memory),
          ApplicationList(event_columns(), memory),
          SecurityList(event_columns(), memory) {
        SystemList.tool_tip = SecurityList.tool_tip = "Right click for more options";
        IgnoreList.tool_tip = "Ignored event list (will not be shown in the view)";
        for (ListControl* table : {&ListView2, &ListView3, &ListView4})
            table->tool_tip = "Right click for more options";
    }

    // Hidden fields: the console's shared state.
    Label lblReturn{.visible = false};        ///< verdict on reachability: "hostok" or "hostdown"
    TextBox AuditStat{.visible = false};      ///< outcome of the last audit: "ok" or "error"
    Label lblselectedTab{.visible = false};   ///< caption of the selected tab of TabStrip2
    Label lblselectedTab2{.visible = false};  ///< analysis table last used: "list2" to "list4"
    TextBox List1Index{.visible = false};     ///< row number of the host being loaded
    TextBox txtHtmlStyle{.text = kPageStyle, .visible = false};
    TextBox txtSelectedHost{.locked = true};  ///< "Host: " and the host whose logs are shown

    TabStrip TabStrip1{.tabs = {{"Hosts"}, {"Search/Analysis"}, {"Alert/Ignore"}}};
    TabStrip TabStrip2{
        .tabs = {
            {" System Log  "}, {" Application Log"}, {" Security Log  "}, {"Analysis Summary"}}};
    std::array<Frame, 3> PosFrame1;  ///< pages of TabStrip1
    std::array<Frame, 4> MainFrame;  ///< pages of TabStrip2
    int host_tab = 1;                ///< tab of TabStrip1 that shows
    int main_tab = 1;                ///< tab of TabStrip2 that shows
    int last_sorted_column = 0;      ///< of the event tables, from 1; 0 before the first sorting
    StatusBar st1{5};
    ProgressBar pbar1;
    Timer tmrAutoAudit{.interval = 3000};
    std::string LastAutoAuditDate;  ///< of the last start of a scheduled run, MM/DD/YYYY
    bool AutoAuditRunning = false;  ///< a scheduled run is under way

    // Hosts.
    ListControl ListView1{{{"HostName"}, {"Audit"}}};

    // Event tables with the check boxes of their types.
    ListControl SystemList;
    ListControl ApplicationList;
    ListControl SecurityList;
    Frame SysFilter, AppFilter, SecFilter;
    Frame HideFrames{.visible = false};
    CheckBox SysErrors{"Errors", "View critial events", 1};  // sic
    CheckBox SysWarnings{"Warnings", "View warning events", 1};
    CheckBox SysInformations{"Informations", "View information events", 1};
    CheckBox AppErrors{"Errors", "View critial events", 1};  // sic
    CheckBox AppWarnings{"Warnings", "View warning events", 1};
    CheckBox AppInformations{"Informations", "View information events", 1};
    CheckBox SecSucc{"Success", "View success audits", 1};
    CheckBox SecFail{"Failures", "View audit failures", 1};

    // Alert and ignore lists.
    Frame AlertFrame{"Highlight On Event Codes.."};
    ListControl AlertList{{{"Alert Pattern Strings"}}};
    TextBox TxtAlert;
    CommandButton Command1{"&add", "Add pattern"};
    CommandButton Command6{"&del", "Remove pattern"};
    Frame IgnoreFrame{"Ignored Events"};
    ListControl IgnoreList{{{"Alert Pattern Strings"}}};  // sic: the heading of both lists
    TextBox txtIgnore;
    CommandButton Command2{"&add", "Add ignore event code"};
    CommandButton Command8{"&del", "Remove ignore event code"};

    // Search and analysis.
    TextBox TxtSearch{.tool_tip = "Enter strings to search for in all the logs..."};
    TextBox txtSearchHist{.locked = true};
    CheckBox Check1{"Search in System Logs"};
    CheckBox Check2{"Search in Application Logs"};
    CheckBox Check3{"Search in Security Logs"};
    CommandButton Command4{"Search", "Search specified string in the logs"};
    CommandButton Command5{"Clear", "Clear search history"};
    CheckBox Check4{"System Logs"};
    CheckBox Check5{"Application Logs"};
    CheckBox Check6{"Security Logs"};
    CommandButton Command3{"Overall Analysis For All Hosts",
                           "Perform overall analysis of event logs"};
    CommandButton Command7{"Export Report To Excel", "Export the generated report to excel format"};
    ListControl ListView2{analysis_columns()};
    ListControl ListView3{analysis_columns()};
    ListControl ListView4{analysis_columns()};
    Label Label6{"System Event Occurance Instances"};       // sic
    Label Label7{"Application Event Occurance Instances"};  // sic
    Label Label8{"Security Event Occurance Instances"};     // sic
    Label lblEventDetail{"--"};
    Frame Frame8{"System Events"};
    Chart sysPie{.series = event_series(),
                 .tool_tip = "Red=Error, Green=Informations, Yellow=Warnings"};
    OptionButton Option4{"Pie chart"}, Option5{"Bar Graph", true};
    Frame Frame9{"Application Events"};
    Chart appPie{.series = event_series(),
                 .tool_tip = "Red=Error, Green=Informations, Yellow=Warnings"};
    OptionButton Option2{"Pie chart"}, Option1{"Bar Graph", true};
    Frame Frame3{"Security Events"};
    Chart SecPie{.series = {{"Audit Failure", kRed}, {"Audit Success", kGreen}},
                 .tool_tip = "Red=Audit Failures, Green=Audit Success"};
    OptionButton Option3{"Pie chart"}, Option6{"Bar Graph", true};

    // Menu bar.
    MenuEntry file{"File"}, hosts{"Hosts"}, run{"Run"}, prefs{"Preferences"}, Help{"Help"};
    MenuEntry exit{"Exit"};
    MenuEntry enumLan{"&Enumerate Lan"}, enumads{"&Enumerate Active Directory"};
    MenuEntry loadfrmlist{"&Load From Hosts List"}, loadpreaudited{"&Load Pre-Audited Hosts"};
    MenuEntry addhostmanually{"&Add Host Manually"}, exporthostlist{"Export To Host List"};
    MenuEntry runFullauditAllhost{"Run Full Audit For All Hosts"};
    MenuEntry runcustomforallhosts{"Run Custom Audit For All Hosts"};
    MenuEntry highlightpatt{"Highlight Alert Patterns"}, hideignore{"Hide Ignored Event Codes"};
    MenuEntry shogrid{"Show Grid Lines"}, settings{"Settings"};
    MenuEntry help{"Help"}, chkupdate{"Check For Updates"}, About{"About"};

    // Context menus.
    MenuEntry vieweventlogs{"View Event Logs"}, dellogs{"Delete Event Logs"};
    MenuEntry fullaudit{"Execute Full Audit"}, custaudit{"Execute Custom Audit"};
    MenuEntry graphicalview{"View Graph"}, removehost{"Remove Selected Hosts"};
    MenuEntry addtohighlightlist{"Add Event To Highlight List"};
    MenuEntry addtoignore{"Add Event To Ignore List"};
    MenuEntry lookingoogle{"Lookup Event In Quillard"};
    MenuEntry mslookup{"Lookup in Microsoft Knowledge Base"};
    MenuEntry addtohighlightlist3{"Add Event To Highlight List"};
    MenuEntry lookupinquillard2{"Lookup in Microsoft Knowledge Base"};

    /// Shows every control that a window has a widget for, under its name.
    template <class Visitor>
    void visit(Visitor&& see) {
        see("txtSelectedHost", txtSelectedHost);
        see("TabStrip1", TabStrip1);
        see("TabStrip2", TabStrip2);
        see("st1", st1);
        see("pbar1", pbar1);
        see("ListView1", ListView1);
        see("SystemList", SystemList);
        see("ApplicationList", ApplicationList);
        see("SecurityList", SecurityList);
        see("SysErrors", SysErrors);
        see("SysWarnings", SysWarnings);
        see("SysInformations", SysInformations);
        see("AppErrors", AppErrors);
        see("AppWarnings", AppWarnings);
        see("AppInformations", AppInformations);
        see("SecSucc", SecSucc);
        see("SecFail", SecFail);
        see("AlertFrame", AlertFrame);
        see("AlertList", AlertList);
        see("TxtAlert", TxtAlert);
        see("Command1", Command1);
        see("Command6", Command6);
        see("IgnoreFrame", IgnoreFrame);
        see("IgnoreList", IgnoreList);
        see("txtIgnore", txtIgnore);
        see("Command2", Command2);
        see("Command8", Command8);
        visit_search_and_analysis(see);
    }

  private:
    template <class Visitor>
    void visit_search_and_analysis(Visitor& see) {
        see("TxtSearch", TxtSearch);
        see("txtSearchHist", txtSearchHist);
        see("Check1", Check1);
        see("Check2", Check2);
        see("Check3", Check3);
        see("Command4", Command4);
        see("Command5", Command5);
        see("Check4", Check4);
        see("Check5", Check5);
        see("Check6", Check6);
        see("Command3", Command3);
        see("Command7", Command7);
        see("ListView2", ListView2);
        see("ListView3", ListView3);
        see("ListView4", ListView4);
        see("Label6", Label6);
        see("Label7", Label7);
        see("Label8", Label8);
        see("lblEventDetail", lblEventDetail);
        see("Frame8", Frame8);
        see("sysPie", sysPie);
        see("Option4", Option4);
        see("Option5", Option5);
        see("Frame9", Frame9);
        see("appPie", appPie);
        see("Option2", Option2);
        see("Option1", Option1);
        see("Frame3", Frame3);
        see("SecPie", SecPie);
        see("Option3", Option3);
        see("Option6", Option6);
    }

    static std::vector<ListColumn> event_columns() {
        return {{"Type"},  {"Date"}, {"Time"},     {"Source"},
                {"Event"}, {"User"}, {"Computer"}, {"Message", 9000}};
    }
    static std::vector<ListColumn> analysis_columns() {
        return {{"Event Code"}, {"Instances"}, {"Source"}};
    }
    static std::vector<ChartSeries> event_series() {
        return {{"Error", kRed}, {"Information", kGreen}, {"Warning", kYellow}};
    }
};

}  // namespace tessarine
