#include "app/events.h"

#include <array>

#include "analysis/graphical_analysis.h"
#include "analysis/overall_analysis.h"
#include "analysis/workbook_export.h"
#include "audit/connection_check.h"
#include "audit/custom_audit.h"
#include "audit/full_audit.h"
#include "chrome/help_menu.h"
#include "chrome/settings_dialog.h"
#include "chrome/start_up.h"
#include "chrome/view_menu.h"
#include "core/console_state.h"
#include "core/event_log.h"
#include "core/run_event.h"
#include "core/tabs.h"
#include "hosts/add_host_dialog.h"
#include "hosts/directory_dialog.h"
#include "hosts/host_list.h"
#include "hosts/host_list_files.h"
#include "hosts/network_dialog.h"
#include "hosts/preaudited_hosts.h"
#include "patterns/code_lists.h"
#include "report/html_page.h"
#include "schedule/mail.h"
#include "schedule/scheduled_audit.h"
#include "search/search.h"
#include "viewer/event_details.h"
#include "viewer/event_lookup.h"
#include "viewer/filtered_redisplay.h"
#include "viewer/host_loading.h"
#include "viewer/record_list_clicks.h"

namespace tessarine {
namespace {

// A routine that takes no notice of the event's details.
template <auto routine>
void plain(Console& console, const InputDetails&) {
    routine(console);
}

// A routine that is about one of the three logs.
template <auto routine, EventLog log>
void of(Console& console, const InputDetails&) {
    routine(console, log);
}

template <auto routine, EventLog log>
void with(Console& console, const InputDetails& details) {
    routine(console, log, details);
}

// Draws a chart of the main window as bars or as a pie.
template <auto chart, ChartType type>
void draw_as(Console& console, const InputDetails&) {
    (console.Form1.*chart).type = type;
}

// The same for the graph of Form5.
template <ChartType type>
void draw_graph_as(Console& console, const InputDetails&) {
    console.Form5->pie.type = type;
}

using enum ChartType;
using enum EventKind;
using enum EventLog;

constexpr FormId Form1 = MainForm::kId;
constexpr FormId Form2 = EventDetailsForm::kId;
constexpr FormId Form3 = SettingsForm::kId;
constexpr FormId Form4 = CustomAuditForm::kId;
constexpr FormId Form5 = GraphForm::kId;
constexpr FormId Form6 = AddHostForm::kId;
constexpr FormId Form7 = NetworkForm::kId;
constexpr FormId ConCheck = ConnectionCheckForm::kId;
constexpr FormId frmADS = DirectoryForm::kId;

constexpr std::array kEvents = {
    // The main window and its menus.
    ControlEvent{Form1, "Form1", Activate, plain<activate_main_form>},
    ControlEvent{Form1, "exit", Click, plain<end_after_event>},
    ControlEvent{Form1, "enumLan", Click, plain<show_network>},
    ControlEvent{Form1, "enumads", Click, plain<show_directory>},
    ControlEvent{Form1, "loadfrmlist", Click, plain<loadfrmlist>},
    ControlEvent{Form1, "loadpreaudited", Click, plain<LoadPreAuditedHosts>},
    ControlEvent{Form1, "addhostmanually", Click, plain<show_add_host>},
    ControlEvent{Form1, "exporthostlist", Click, plain<exporthostlist>},
    ControlEvent{Form1, "runFullauditAllhost", Click, plain<runFullauditAllhost>},
    ControlEvent{Form1, "runcustomforallhosts", Click, plain<runcustomforallhosts>},
    ControlEvent{Form1, "highlightpatt", Click, plain<highlightpatt>},
    ControlEvent{Form1, "hideignore", Click, plain<hideignore>},
    ControlEvent{Form1, "shogrid", Click, plain<shogrid>},
    ControlEvent{Form1, "settings", Click, plain<show_settings>},
    ControlEvent{Form1, "help", Click, plain<open_help>},
    ControlEvent{Form1, "About", Click, plain<show_about>},
    ControlEvent{Form1, "TabStrip1", Click, plain<click_tab_of_left_strip>},
    ControlEvent{Form1, "TabStrip2", Click, plain<click_tab_of_right_strip>},

    // The host list.
    ControlEvent{Form1, "ListView1", MouseDown, press_on_host_list},
    ControlEvent{Form1, "vieweventlogs", Click, plain<vieweventlogs>},
    ControlEvent{Form1, "dellogs", Click, plain<dellogs>},
    ControlEvent{Form1, "fullaudit", Click, plain<fullaudit>},
    ControlEvent{Form1, "custaudit", Click, plain<custaudit>},
    ControlEvent{Form1, "removehost", Click, plain<removehost>},
    ControlEvent{Form1, "txtSelectedHost", GotFocus, plain<enter_selected_host>},
    ControlEvent{Form1, "txtSelectedHost", MouseDown, press_on_selected_host},

    // The event tables.
    ControlEvent{Form1, "SystemList", MouseUp, with<release_on_events, System>},
    ControlEvent{Form1, "ApplicationList", MouseUp, with<release_on_events, Application>},
    ControlEvent{Form1, "SecurityList", MouseUp, with<release_on_events, Security>},
    ControlEvent{Form1, "SystemList", DoubleClick, of<open_event, System>},
    ControlEvent{Form1, "ApplicationList", DoubleClick, of<open_event, Application>},
    ControlEvent{Form1, "SecurityList", DoubleClick, of<open_event, Security>},
    ControlEvent{Form1, "SystemList", ColumnClick, with<click_column, System>},
    ControlEvent{Form1, "ApplicationList", ColumnClick, with<click_column, Application>},
    ControlEvent{Form1, "addtohighlightlist", Click, plain<addtohighlightlist>},
    ControlEvent{Form1, "addtoignore", Click, plain<addtoignore>},
    ControlEvent{Form1, "mslookup", Click, plain<mslookup>},
    ControlEvent{Form1, "SysErrors", Click, of<click_type_box, System>},
    ControlEvent{Form1, "SysWarnings", Click, of<click_type_box, System>},
    ControlEvent{Form1, "SysInformations", Click, of<click_type_box, System>},
    ControlEvent{Form1, "AppErrors", Click, of<click_type_box, Application>},
    ControlEvent{Form1, "AppWarnings", Click, of<click_type_box, Application>},
    ControlEvent{Form1, "AppInformations", Click, of<click_type_box, Application>},
    ControlEvent{Form1, "SecSucc", Click, of<click_type_box, Security>},
    ControlEvent{Form1, "SecFail", Click, of<click_type_box, Security>},
    ControlEvent{Form1, "print", Click, plain<print_current_page>},

    // The search.
    ControlEvent{Form1, "Command4", Click, plain<search_and_remember>},
    ControlEvent{Form1, "Command5", Click, plain<clear_search_history>},

    // The analysis and its tables.
    ControlEvent{Form1, "Command3", Click, plain<run_overall_analysis>},
    ControlEvent{Form1, "Command7", Click, plain<AnalysisExport>},
    ControlEvent{Form1, "ListView2", MouseUp, with<release_on_analysis, System>},
    ControlEvent{Form1, "ListView3", MouseUp, with<release_on_analysis, Application>},
    ControlEvent{Form1, "ListView4", MouseUp, with<release_on_analysis, Security>},
    ControlEvent{Form1, "Option4", Click, draw_as<&MainForm::sysPie, Pie>},
    ControlEvent{Form1, "Option5", Click, draw_as<&MainForm::sysPie, Bar>},
    ControlEvent{Form1, "Option2", Click, draw_as<&MainForm::appPie, Pie>},
    ControlEvent{Form1, "Option1", Click, draw_as<&MainForm::appPie, Bar>},
    ControlEvent{Form1, "Option3", Click, draw_as<&MainForm::SecPie, Pie>},
    ControlEvent{Form1, "Option6", Click, draw_as<&MainForm::SecPie, Bar>},
    ControlEvent{Form1, "addtohighlightlist3", Click, plain<addtohighlightlist3>},
    ControlEvent{Form1, "lookupinquillard2", Click, plain<lookupinquillard2>},

    // The graph of a host.
    ControlEvent{Form1, "graphicalview", Click, plain<graphicalview>},
    ControlEvent{Form5, "Option1", Click, of<graph_log, System>},
    ControlEvent{Form5, "Option2", Click, of<graph_log, Application>},
    ControlEvent{Form5, "Option3", Click, of<graph_log, Security>},
    ControlEvent{Form5, "Option4", Click, draw_graph_as<Pie>},
    ControlEvent{Form5, "Option5", Click, draw_graph_as<Bar>},

    // The details of an event.
    ControlEvent{Form2, "Form2", Activate, plain<activate_event_details>},
    ControlEvent{Form2, "CmdUp", Click, plain<CmdUp>},
    ControlEvent{Form2, "CmdDown", Click, plain<CmdDown>},
    ControlEvent{Form2, "cmdClipboard", Click, plain<copy_event_to_clipboard>},
    ControlEvent{Form2, "Command2", Click, plain<look_up_shown_event>},
    ControlEvent{Form2, "Command1", Click, plain<close_event_details>},

    // Alert and ignore lists.
    ControlEvent{Form1, "Command1", Click, plain<add_alert_pattern>},
    ControlEvent{Form1, "Command6", Click, plain<remove_alert_pattern>},
    ControlEvent{Form1, "AlertList", Click, plain<pick_alert_pattern>},
    ControlEvent{Form1, "Command2", Click, plain<add_ignored_code>},
    ControlEvent{Form1, "Command8", Click, plain<remove_ignored_code>},
    ControlEvent{Form1, "IgnoreList", Click, plain<pick_ignored_code>},

    // The custom audit.
    ControlEvent{Form4, "Form4", Activate, plain<activate_custom_audit>},
    ControlEvent{Form4, "MonthView1", DateClick, plain<choose_audit_date>},
    ControlEvent{Form4, "chkSpecificDate", Click, plain<click_specific_date>},
    ControlEvent{Form4, "Command1", Click, plain<run_custom_audit>},

    // The settings.
    ControlEvent{Form3, "TabStrip1", Click, plain<click_tab_of_settings>},
    ControlEvent{Form3, "cmdLogPathBrowse", Click, plain<browse_for_log_path>},
    ControlEvent{Form3, "cmdArchiveBrowse", Click, plain<browse_for_archive_path>},
    ControlEvent{Form3, "cmdAuditSave", Click, plain<save_audit_settings>},
    ControlEvent{Form3, "Command2", Click, plain<save_credentials>},
    ControlEvent{Form3, "UpDown1", Change, plain<step_hour>},
    ControlEvent{Form3, "UpDown3", Change, plain<step_minute>},
    ControlEvent{Form3, "UpDown2", Change, plain<step_days_back>},
    ControlEvent{Form3, "Command4", Click, plain<browse_for_host_file>},
    ControlEvent{Form3, "Command7", Click, plain<save_schedule>},
    ControlEvent{Form3, "Command3", Click, plain<save_mail_settings>},
    ControlEvent{Form3, "Command1", Click, plain<test_mail_settings>},

    // The schedule.
    ControlEvent{Form1, "tmrAutoAudit", Timer, plain<tick_schedule>},

    // The directory.
    ControlEvent{frmADS, "Command1", Click, plain<list_containers>},
    ControlEvent{frmADS, "Command2", Click, plain<list_objects>},
    ControlEvent{frmADS, "Command3", Click, plain<add_listed_objects>},

    // Hosts of the network, adding hosts by hand, the test of a host.
    ControlEvent{Form7, "Form7", Activate, plain<activate_network>},
    ControlEvent{Form7, "Command1", Click, plain<enumerate_ticked_groups>},
    ControlEvent{Form6, "Command1", Click, plain<add_typed_host>},
    ControlEvent{Form6, "AddHost", EnterKey, plain<add_typed_host_on_enter>},
    ControlEvent{ConCheck, "Timer1", Timer, plain<end_connection_attempt>},
};

}  // namespace

std::span<const ControlEvent> control_events() {
    return kEvents;
}

}  // namespace tessarine
