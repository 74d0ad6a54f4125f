#include "schedule/scheduled_audit.h"

#include <gtest/gtest.h>

#include <chrono>
#include <string>

#include "app/events.h"
#include "core/regional_text.h"
#include "core/run_event.h"
#include "fakes/drawn.h"
#include "fakes/rig.h"

namespace tessarine {
namespace {

using fakes::drawn;
using fakes::HostEvent;
using fakes::Rig;

constexpr const char* kReport = "/app/Logs/20-02-2024_AutoAudit.log";

class ScheduledAudit : public testing::Test {
  protected:
    ScheduledAudit() {
        rig.clock.moment = {{2024, 2, 20}, {9, 5, 0}};
        rig.files.make_folders("/app/Logs");
        rig.files.put("/hosts.txt", "pc1\r\npc2\r\n\\\\pc3\r\n");
        form.txtHosts.text = "/hosts.txt";
        form.txtHour.text = "09";
        form.txtMin.text = "05";
        for (const char* name : {"PC1", "PC2", "\\\\PC3"}) {
            rig.network.hosts[name].records = {HostEvent{}};
            rig.probe.answers[name] = fakes::kConnects;
        }
    }

    std::string panels() { return drawn(rig, "st1").substr(6); }
    void tick_at(const DateTime& moment) {
        rig.clock.moment = moment;
        rig.run(tick_schedule);
    }

    Rig rig{control_events()};
    SettingsForm& form = rig.console.Form3.get();
};

TEST_F(ScheduledAudit, StartsOnceInItsMinuteOnEveryDay) {
    const Date day{2024, 2, 28};
    tick_at({day, {9, 4, 59}});
    EXPECT_EQ(panels(), "[][][][][09:04 -  AutoAudit @: 09:05]\n");
    EXPECT_EQ(rig.network.connects, 0);
    for (const int second : {0, 3, 57}) tick_at({day, {9, 5, second}});
    EXPECT_EQ(rig.network.connects, 3) << "one run over three hosts";
    EXPECT_EQ(panels(),
              "[Auto Audit Finished At 2/28/2024 9:05:00 AM][][][][09:05 -  AutoAudit @: "
              "09:05]\n");
    tick_at({day, {9, 6, 0}});
    EXPECT_EQ(rig.network.connects, 3);
    // Leap day, the month after, and a clock that is set back to a day that had its run.
    tick_at({{2024, 2, 29}, {9, 5, 30}});
    tick_at({{2024, 3, 1}, {9, 5, 0}});
    EXPECT_EQ(rig.network.connects, 9);
    tick_at({{2024, 2, 29}, {9, 5, 0}});
    EXPECT_EQ(rig.network.connects, 12) << "the last day alone is remembered";
    form.txtHour.text = "9";
    tick_at({{2024, 3, 2}, {9, 5, 0}});
    EXPECT_EQ(rig.network.connects, 12) << "9:05 is no 09:05";
}

TEST_F(ScheduledAudit, ReportsEachHostInABlockOfItsOwn) {
    rig.console.Form1.AlertList.add_row("4625", 0);
    for (const char* code : {"w32", "7"}) rig.console.Form1.AlertList.add_row(code, 0);
    rig.console.Form1.AlertList.add_row("W32", 0);
    rig.files.put("/hosts.txt", "pc1\r\n\r\n\\\\pc3\r\npc2\r\n../pc1\r\n\\\\PC3");
    rig.probe.answers["../PC1"] = fakes::kConnects;
    rig.network.hosts["PC1"].records = {
        HostEvent{.LogFile = "Security", .EventCode = "4625"}, HostEvent{.EventCode = "W32"},
        HostEvent{.LogFile = "Application", .EventCode = "7", .ComputerName = "other"},
        HostEvent{.EventCode = "77"}};
    rig.network.hosts["PC2"].connect_error = "The host refused the credentials";
    rig.network.hosts["PC2"].records = {};
    rig.run(AutoAudit);
    EXPECT_EQ(rig.files.bytes(kReport),
              "#############\r\n \r\nPC1  - Ok: Audit Success\r\n"
              "Sys Event 11/30/2004 11:59:59 PM  >>Event:W32  >>Host: PC1\r\n"
              "Sys Event 11/30/2004 11:59:59 PM  >>Event:W32  >>Host: PC1\r\n"
              "App Event 11/30/2004 11:59:59 PM  >>Event:7  >>Host: other\r\n"
              "Sec Event 11/30/2004 11:59:59 PM  >>Event:4625   >>Host: PC1\r\n"
              "#############\r\n \r\n  - Error: Host Down or Remote Port Blocked\r\n"
              "#############\r\n \r\n\\\\PC3  - Ok: Audit Success\r\n"
              "#############\r\n \r\n"
              "PC2  - Error: Audit Error - The host refused the credentials - Audit error\r\n"
              "#############\r\n \r\n"
              "../PC1  - Error: Audit Error - The host name \"../PC1\" can't name a file - Audit "
              "error\r\n"
              "#############\r\n \r\n\\\\PC3  - Ok: Audit Success\r\n");
    EXPECT_FALSE(rig.console.Form1.AutoAuditRunning);
}

// A year with a leap day, and with a clock that is put forward and back.
TEST_F(ScheduledAudit, StartsOnceADayForFourHundredDays) {
    using std::chrono::sys_days;
    rig.files.put("/hosts.txt", "pc1\r\n");
    form.txtHour.text = "02";
    form.txtMin.text = "30";
    int expected = 0;
    for (sys_days day = std::chrono::year{2024} / 1 / 1; day < std::chrono::year{2025} / 2 / 4;
         day += std::chrono::days{1}) {
        const std::chrono::year_month_day date(day);
        const Date today{int{date.year()}, static_cast<int>(unsigned{date.month()}),
                         static_cast<int>(unsigned{date.day()})};
        const bool put_forward = today == Date{2024, 3, 31};
        const bool put_back = today == Date{2024, 10, 27};
        for (int minute = 0; minute < 4 * 60; minute += 10) {
            // The hour from two to three is left out, or comes twice.
            if (put_forward && minute / 60 == 2) continue;
            tick_at({today, {minute / 60, minute % 60, 1}});
            if (put_back && minute / 60 == 2) tick_at({today, {2, minute % 60, 2}});
        }
        expected += put_forward ? 0 : 1;
        ASSERT_EQ(rig.network.connects, expected) << text_of_date(today);
    }
    EXPECT_EQ(expected, 399);
}

// KEEP(days-back-stay-in-the-month)
TEST_F(ScheduledAudit, ReadsFromADayOfThisMonthOn) {
    const struct {
        int today;
        const char* days_back;
        const char* first;  // of the query; empty for an audit that failed
    } cases[] = {{20, "7", "20240213"},    {3, "7", "20240203"},
                 {20, "abc", "20240220"},  {20, "", "20240220"},
                 {20, "-3", "20240223"},   {20, " 1 2x", "20240208"},
                 {20, "2.5", "20240218"},  {20, "3.5", "20240216"},
                 {20, ".6e1", "20240214"}, {7, "7", ""},
                 {20, "-20", ""}};
    rig.files.put("/hosts.txt", "pc1\r\n");
    for (const auto& each : cases) {
        rig.network.query.clear();
        rig.console.Form1.LastAutoAuditDate.clear();
        rig.clock.moment.date.day = each.today;
        form.txtretlog.text = each.days_back;
        rig.run(AutoAudit);
        const std::size_t literal = rig.network.query.find('\'');
        const std::string first =
            literal == std::string::npos ? "" : rig.network.query.substr(literal + 1, 8);
        EXPECT_EQ(first, each.first) << each.today << " " << each.days_back;
        EXPECT_EQ(rig.console.Form1.AuditStat.text, *each.first == '\0' ? "error" : "ok");
    }
}

// KEEP(missing-host-file-blocks-later-runs)
TEST_F(ScheduledAudit, AMissingHostFileKeepsAllLaterRunsBack) {
    form.txtHosts.text = "/gone.txt";
    rig.run(AutoAudit);
    EXPECT_EQ(panels(),
              "[Empty Hosts File or No Host File Selected][][][][Auto Audit In Progress..]\n");
    form.txtHosts.text = "/hosts.txt";
    rig.run(AutoAudit);
    EXPECT_EQ(panels(),
              "[Empty Hosts File or No Host File Selected][][][][Auto Audit In Progress..]\n")
        << "not twice on one day";
    ++rig.clock.moment.date.day;
    rig.run(AutoAudit);
    EXPECT_EQ(panels(), "[Auto Audit Already In Progress][][][][Auto Audit In Progress..]\n");
    EXPECT_EQ(rig.network.connects, 0);
}

// A thousand hosts: every third is down, every twentieth refuses.
TEST_F(ScheduledAudit, GoesOverAThousandHostsInTheOrderOfTheFile) {
    std::string hosts;
    std::string expected;
    rig.console.Form1.AlertList.add_row("7", 0);
    for (int i = 1; i <= 1000; ++i) {
        const std::string name = "H" + std::to_string(i);
        hosts += "h" + std::to_string(i) + "\r\n";
        expected += "#############\r\n \r\n" + name;
        rig.probe.answers[name] = i % 3 == 0 ? fakes::kSilent : fakes::kConnects;
        fakes::ScriptedHost& host = rig.network.hosts[name];
        if (i % 20 == 1) host.query_error = "refused";
        for (int code = 1; code <= i % 8; ++code)
            host.records.push_back(
                {.EventCode = std::to_string(code), .ComputerName = name, .Message = "x|7|y"});
        if (i % 3 == 0) {
            expected += "  - Error: Host Down or Remote Port Blocked\r\n";
        } else if (i % 20 == 1) {
            expected += "  - Error: Audit Error - refused - Audit error\r\n";
        } else {
            expected += "  - Ok: Audit Success\r\n";
            if (i % 8 == 7)
                expected += "Sys Event 11/30/2004 11:59:59 PM  >>Event:7  >>Host: " + name + "\r\n";
        }
    }
    rig.files.put("/hosts.txt", hosts);
    form.Check6.value = 1;
    rig.run(AutoAudit);
    EXPECT_TRUE(rig.files.bytes(kReport) == expected);
    EXPECT_EQ(rig.mail.sent.size(), 1u);
}

// KEEP(mail-after-every-run)
TEST_F(ScheduledAudit, MailsItsReportWhetherAnythingMatchedOrNot) {
    rig.run(AutoAudit);
    EXPECT_TRUE(rig.mail.sent.empty()) << "not asked for";
    form.Check6.value = 1;
    rig.mail.during_send = [this] {
        EXPECT_NE(rig.files.bytes(kReport), "") << "the report is on disk before";
        EXPECT_TRUE(rig.console.Form1.AutoAuditRunning);
        EXPECT_EQ(rig.console.Form1.st1.text(5), "Sending Mail..");
    };
    for (const auto& [code, subject] :
         {std::pair{"1", "Tessarine-No Alerts"}, {"4201", "Tessarine-Pattern Match Alert"}}) {
        rig.console.Form1.AlertList.add_row(code, 0);
        rig.console.Form1.LastAutoAuditDate.clear();
        rig.run(AutoAudit);
        EXPECT_EQ(rig.mail.sent.back().subject, subject);
        EXPECT_EQ(rig.mail.sent.back().attachment, kReport);
        EXPECT_EQ(panels(), "[Auto Audit Finished At 2/20/2024 9:05:00 AM][][][][]\n");
    }
    EXPECT_EQ(rig.mail.sent.size(), 2u);
    // A run that the user ends has no mail; one that fails to send it has ended all the same.
    rig.console.Form1.LastAutoAuditDate.clear();
    rig.mail.explanation = "refused";
    rig.run(AutoAudit);
    EXPECT_FALSE(rig.console.Form1.AutoAuditRunning);
    rig.console.Form1.LastAutoAuditDate.clear();
    rig.network.hosts["PC1"].before_record = [&](int, int) { end_after_event(rig.console); };
    rig.run(AutoAudit);
    EXPECT_EQ(rig.mail.sent.size(), 3u);
}

TEST_F(ScheduledAudit, AnEmptyHostFileGivesAnEmptyReport) {
    rig.files.put(kReport, "of an earlier run");
    rig.files.put("/hosts.txt", "");
    rig.run(AutoAudit);
    EXPECT_EQ(rig.files.bytes(kReport), "");
    EXPECT_EQ(panels(), "[Auto Audit Finished At 2/20/2024 9:05:00 AM][][][][]\n");
}

TEST_F(ScheduledAudit, ClosedInTheMidstItEndsAfterTheHostThatIsRead) {
    rig.network.hosts["PC1"].before_record = [&](int, int) { end_after_event(rig.console); };
    rig.run(AutoAudit);
    EXPECT_TRUE(rig.program.ended);
    EXPECT_EQ(rig.files.bytes(kReport), "#############\r\n \r\nPC1  - Ok: Audit Success\r\n");
    EXPECT_EQ(panels(), "[][][][][Closing when done ...]\n");
}

// What ends the console, with what was reported until then on disk.
TEST_F(ScheduledAudit, HasNoHandlingOfItsOwn) {
    const auto message = [this] {
        rig.run(AutoAudit);
        EXPECT_TRUE(rig.program.ended);
        return rig.dialogs.messages.empty() ? "" : rig.dialogs.messages.back().text;
    };
    form.txtretlog.text = "99999";
    EXPECT_EQ(message(), "Run-time error '6':\r\n\r\nOverflow");

    Rig no_folder{control_events()};
    no_folder.files.put("/hosts.txt", "pc1\r\n");
    no_folder.console.Form3->txtHosts.text = "/hosts.txt";
    no_folder.run(AutoAudit);
    EXPECT_EQ(no_folder.dialogs.messages.back().text, "Run-time error '76':\r\n\r\nPath not found");
}

// KEEP(broken-record-ends-the-daily-audit)
TEST_F(ScheduledAudit, AShortRecordEndsItOnceThereIsSomethingToCompare) {
    form.choose(form.optAppend);
    rig.files.put("/app/Data/PC1_application.log", "error|d|t|source\r\n");
    rig.run(AutoAudit);
    EXPECT_FALSE(rig.program.ended) << "the alert list is empty";
    rig.console.Form1.LastAutoAuditDate.clear();
    rig.console.Form1.AlertList.add_row("4201", 0);
    rig.run(AutoAudit);
    EXPECT_TRUE(rig.program.ended);
    EXPECT_EQ(rig.dialogs.messages.back().text,
              "Run-time error '9':\r\n\r\nSubscript out of range");
    EXPECT_EQ(rig.files.bytes(kReport),
              "#############\r\n \r\nPC1  - Ok: Audit Success\r\n"
              "Sys Event 11/30/2004 11:59:59 PM  >>Event:4201  >>Host: PC1\r\n"
              "Sys Event 11/30/2004 11:59:59 PM  >>Event:4201  >>Host: PC1\r\n");
}

}  // namespace
}  // namespace tessarine
