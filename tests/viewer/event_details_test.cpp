#include "viewer/event_details.h"

#include <gtest/gtest.h>

#include <string>

#include "app/events.h"
#include "core/log_facts.h"
#include "fakes/rig.h"
#include "store/event_record.h"

namespace tessarine {
namespace {

using fakes::Rig;

// What the form shows, a line each; the picture in front.
std::string shown(Console& console) {
    const EventDetailsForm& form = console.Form2.get();
    std::string text = std::to_string(form.Image1.picture);
    for (const Label* label : {&form.lblType, &form.lbldate, &form.lblTime, &form.lblSource,
                               &form.lblEventID, &form.lblUser, &form.lblComputer})
        text += "|" + label->caption;
    return text + "|" + form.txtDesc.text + " " + form.st1.text(1);
}

class EventDetails : public testing::Test {
  protected:
    static void add(ListControl& table, const std::string& line) {
        table.add_record_row(EventRecord(line).text(), 1);
    }
    // Opens the form on a row and lets the user do something there.
    void open(EventLog log, int row, fakes::ScriptedWindows::Script script) {
        Rig::select(table_of(form, log), {row});
        rig.windows.when_shown(EventDetailsForm::kId, [script](Console& console) {
            script(console);
            close_event_details(console);
        });
        double_click(log);
    }
    void double_click(EventLog log) {
        rig.run([log](Console& console) { open_event(console, log); });
    }

    Rig rig{control_events()};
    MainForm& form = rig.console.Form1;
};

TEST_F(EventDetails, ShowTheRowAndWalkThroughTheTable) {
    add(form.SystemList, "Error|1/2/2004|3:04:05 AM|Disk|7|SYSTEM|PC1|Bad~block|more");
    add(form.SystemList, "Warnung|1/3/2004|4:04:05 AM|Tcpip|4201|u|PC1|Ready");
    open(EventLog::System, 1, [this](Console& console) {
        EXPECT_EQ(console.Form2->caption, "System Log: ");
        const std::string first = "2|Error|1/2/2004|3:04:05 AM|Disk|7|SYSTEM|PC1|Bad\r\nblock ";
        EXPECT_EQ(shown(console), first);
        CmdUp(console);
        EXPECT_EQ(shown(console), first + "Begining of Log");
        CmdDown(console);
        const std::string second = "1|Warnung|1/3/2004|4:04:05 AM|Tcpip|4201|u|PC1|Ready ";
        EXPECT_EQ(shown(console), second);
        EXPECT_EQ(form.SystemList.take_changes().scrolled_to, 2);
        EXPECT_FALSE(form.SystemList.row(1).selected());
        CmdDown(console);
        EXPECT_EQ(shown(console), second + "End of Log");
        CmdUp(console);
        CmdDown(console);
        EXPECT_EQ(console.Form2->txtListIndex.text, "2");
        look_up_shown_event(console);
    });
    EXPECT_FALSE(rig.console.Form2.loaded());
    EXPECT_EQ(form.SystemList.selected_item(), 2);
    EXPECT_TRUE(form.SystemList.row(2).selected());
    EXPECT_EQ(rig.shell.opened,
              std::vector<std::string>{"http://www.tessarine.example/cgi-bin/tessarine.pl?EvtSrc="
                                       "Tcpip&EvtID=4201&ProdName=Windows Operating "
                                       "System&action=tessarine"});
}

TEST_F(EventDetails, StayClosedForATableWithoutARow) {
    double_click(EventLog::System);
    EXPECT_TRUE(rig.windows.shown.empty());
}

// KEEP(audit-failure-opens-without-a-picture)
TEST_F(EventDetails, KnowFivePicturesButThreeOnOpeningTheApplicationLog) {
    const std::pair<const char*, int> types[] = {{"WARNING", 1},
                                                 {"fehler", 2},
                                                 {"Informationen", 3},
                                                 {"Audit success", 4},
                                                 {"\xDC"
                                                  "berwachungsfehler",
                                                  5},
                                                 {"odd", 5}};
    for (const auto& [type, picture] : types)
        add(form.SecurityList, std::string(type) + "|d|t|s|1|u|c|m");
    const auto pictures = [&](Console& console) {
        for (const auto& [type, picture] : types) {
            EXPECT_EQ(console.Form2->Image1.picture, picture) << type;
            CmdDown(console);
        }
    };
    open(EventLog::Security, 1, pictures);
    add(form.ApplicationList, "audit failure|d|t|s|1|u|c|m");
    add(form.ApplicationList, "audit failure|d|t|s|2|u|c|m");
    open(EventLog::Application, 1, [](Console& console) {
        EXPECT_EQ(console.Form2->Image1.picture, 0);
        CmdDown(console);
        EXPECT_EQ(console.Form2->Image1.picture, 5);
    });
}

TEST_F(EventDetails, GoToTheClipboardAsText) {
    add(form.ApplicationList, "Error|1/2/2004|3:04:05 AM|Disk: C|7|u|PC1|Bad~block");
    add(form.SystemList, "Error|1/2/2004|3:04:05 AM|Disk|7|u|PC1|Bad");
    open(EventLog::System, 1, copy_event_to_clipboard);
    EXPECT_EQ(rig.clipboard.text.substr(0, 36), "Host:\t\tPC1\r\nLog:\t\tSystem Log \r\nType:");
    open(EventLog::Application, 1, copy_event_to_clipboard);
    EXPECT_EQ(rig.clipboard.text,
              "Host:\t\tPC1\r\nLog:\t\tApplication Log \r\nType:\t\tError\r\n"
              "Date:\t\t1/2/2004 3:04:05 AM\r\nSource:\t\tDisk: C\r\nEvent Code:\t7\r\n"
              "Username:\tu\r\nMessage:\tBad\r\nblock");
}

TEST_F(EventDetails, ForgiveAShortRecordInTheApplicationLogAlone) {
    for (ListControl* table : {&form.ApplicationList, &form.SystemList})
        table->add_row("Error", 4).add_sub_item("1/2/2004");
    open(EventLog::Application, 1,
         [](Console& console) { EXPECT_EQ(shown(console), "2|Error|1/2/2004|||||| "); });
    EXPECT_FALSE(rig.program.ended);
    Rig::select(form.SystemList, {1});
    double_click(EventLog::System);
    EXPECT_TRUE(rig.program.ended);
}

// KEEP(details-stop-at-row-32767)
TEST_F(EventDetails, EndTheConsoleAfterRow32767) {
    for (int i = 0; i < 32'768; ++i) add(form.SecurityList, "audit success|d|t|s|1|u|c|m");
    open(EventLog::Security, 32'767, [](Console& console) {
        EXPECT_EQ(console.Form2->position, 32'767);
        EXPECT_THROW(CmdDown(console), RuntimeError);
    });
    EXPECT_FALSE(rig.program.ended);
    Rig::select(form.SecurityList, {32'768});
    double_click(EventLog::Security);
    EXPECT_TRUE(rig.program.ended);
    EXPECT_NE(rig.dialogs.messages.back().text.find("Overflow"), std::string::npos);
}

}  // namespace
}  // namespace tessarine
