// What is on the disk when a console is killed: before each step of what it does to its store in
// turn, and at any moment.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <random>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

#include "adapters/system/local_files.h"
#include "adapters/system/sqlite_settings.h"
#include "adapters/system_temporary_folder.h"
#include "audit/audit_host.h"
#include "chrome/settings_dialog.h"
#include "chrome/start_up.h"
#include "core/settings_store.h"
#include "fakes/mortal_parts.h"
#include "fakes/rig.h"
#include "patterns/code_lists.h"

namespace tessarine {
namespace {

const std::string kOldLine = "information|1/1/2004|1:00:00 AM|old|1|N/A|PC1|old\r\n";
const std::string kCodes = "4625\r\n\r\n7036\r\n\r\n";
// More than a buffer holds.
constexpr int kRecords = 20;
constexpr int kMessage = 20'000;

class InFolder final : public Program {
  public:
    explicit InFolder(std::string folder) : folder_(std::move(folder)) {}
    std::string application_directory() override { return folder_; }
    void end() override { ended = true; }
    bool ended = false;

  private:
    std::string folder_;
};

// A console on a real store, over hosts that are none.
struct MortalConsole {
    MortalConsole(const std::string& folder, int last_step)
        : death(last_step), program(folder), database(folder + "/settings.db") {
        rig.network.hosts["PC1"].records.assign(kRecords, {.Message = std::string(kMessage, 'm')});
        rig.windows.attach(console);
    }
    void run(const std::function<void(Console&)>& routine) { run_event(console, routine); }

    fakes::Rig rig;
    fakes::Death death;
    InFolder program;
    LocalFiles disk;
    fakes::MortalFiles files{disk, death};
    SqliteSettings database;
    fakes::MortalSettings settings{database, death};
    Console console{{.event_source = rig.network,
                     .files = files,
                     .directory_listing = rig.files,
                     .clock = rig.clock,
                     .settings_values = settings,
                     .tcp_probe = rig.probe,
                     .browse_list = rig.browse,
                     .form_windows = rig.windows,
                     .dialogs = rig.dialogs,
                     .clipboard = rig.clipboard,
                     .chart_picture = rig.chart_picture,
                     .workbooks = rig.workbooks,
                     .mail_sender = rig.mail,
                     .directory_service = rig.directory,
                     .shell = rig.shell,
                     .program = program}};
};

void audit(MortalConsole& mortal, OptionButton SettingsForm::*option) {
    SettingsForm& form = mortal.console.Form3.get();
    form.choose(form.*option);
    mortal.run([](Console& console) { AuditHost(console, "PC1", "full", {}); });
}

void change_list(MortalConsole& mortal, void (*change)(Console&)) {
    mortal.console.Form1.TxtAlert.text = "1000";
    mortal.run(change);
}

void save(MortalConsole& mortal, const std::string& hour) {
    mortal.console.Form3->txtHour.text = hour;
    mortal.console.Form3->txtHosts.text = "/" + hour;
    mortal.run(save_schedule);
}

// What a user does who does everything.
void work(MortalConsole& mortal) {
    audit(mortal, &SettingsForm::optAppend);
    change_list(mortal, add_alert_pattern);
    save(mortal, "01");
    audit(mortal, &SettingsForm::optMove);
    change_list(mortal, remove_alert_pattern);
    save(mortal, "02");
}

class KilledConsole : public testing::Test {
  protected:
    KilledConsole() {
        for (const char* folder : {"Data", "Logs", "Archive"})
            std::filesystem::create_directory(folder_.path_of(folder));
        for (const char* list : {"alertpatterns.txt", "ignorelist.txt"}) folder_.put(list, kCodes);
        MortalConsole first(folder_.path(), 0);
        first.run(start_up);
        save(first, "02");
        renew_log();
    }

    void renew_log() {
        std::filesystem::remove_all(folder_.path_of("Archive"));
        std::filesystem::create_directory(folder_.path_of("Archive"));
        old_.clear();
        for (int i = 0; i < 100; ++i) old_ += kOldLine;
        folder_.put("Data/PC1_system.log", old_);
    }

    // A process of its own; true when it came to its end.
    template <class Act, class Meanwhile>
    static bool survives(Act act, Meanwhile meanwhile) {
        const pid_t child = ::fork();
        if (child == 0) {
            act();
            ::_exit(0);
        }
        meanwhile(child);
        int status = 0;
        ::waitpid(child, &status, 0);
        EXPECT_TRUE(WIFEXITED(status) || WTERMSIG(status) == SIGKILL) << status;
        return WIFEXITED(status);
    }

    bool has_old_records() const {
        if (folder_.bytes_of("Data/PC1_system.log").starts_with(old_)) return true;
        const std::filesystem::directory_iterator archives(folder_.path_of("Archive"));
        return std::any_of(begin(archives), end(archives), [&](const auto& archive) {
            const std::string name = "Archive/" + archive.path().filename().string();
            return folder_.bytes_of(name + "/PC1_system.log").starts_with(old_);
        });
    }

    // For each line whether it is a whole record.
    std::vector<bool> whole_lines() const {
        std::istringstream lines(folder_.bytes_of("Data/PC1_system.log"));
        std::vector<bool> whole;
        for (std::string line; std::getline(lines, line);)
            whole.push_back(std::count(line.begin(), line.end(), '|') == 7 && line.back() == '\r');
        return whole;
    }

    // The next console starts, has old or new lists and settings, and audits.
    void expect_that_it_goes_on() {
        EXPECT_TRUE(has_old_records());
        MortalConsole next(folder_.path(), 0);
        next.run(start_up);
        std::string codes;
        const ListControl& alerts = next.console.Form1.AlertList;
        for (int row = 1; row <= alerts.count(); ++row)
            codes += std::string(alerts.row(row).text()) + " ";
        EXPECT_TRUE(codes == "4625 7036 " || codes == "4625 7036 1000 ") << codes;
        EXPECT_EQ(next.console.Form1.IgnoreList.count(), 2);
        for (const std::string& value :
             {next.console.Form3->txtHour.text, next.console.Form3->txtHosts.text.substr(1)})
            EXPECT_TRUE(value == "01" || value == "02") << value;
        audit(next, &SettingsForm::optAppend);
        EXPECT_EQ(next.console.Form1.AuditStat.text, "ok") << next.console.Form1.st1.text(1);
        EXPECT_TRUE(next.rig.dialogs.messages.empty());
        EXPECT_FALSE(next.program.ended);
        const std::vector<bool> whole = whole_lines();
        EXPECT_LE(std::count(whole.begin(), whole.end(), false), 1);
        EXPECT_EQ(std::count(whole.end() - kRecords, whole.end(), true), kRecords)
            << "a record stands on the line that was cut off";
        if (codes.size() > 10) change_list(next, remove_alert_pattern);
    }

    // A process that is killed leaves the same on a disk in memory, which is faster.
    static std::filesystem::path disk() {
        return std::filesystem::exists("/dev/shm") ? "/dev/shm"
                                                   : std::filesystem::temp_directory_path();
    }

    TemporaryFolder folder_{disk()};
    std::string old_;
};

TEST_F(KilledConsole, BeforeEachOfItsSteps) {
    int step = 1;
    const auto killed = [&] {
        return !survives(
            [&] {
                MortalConsole mortal(folder_.path(), step);
                mortal.run(start_up);
                work(mortal);
            },
            [](pid_t) {});
    };
    for (; killed() && !HasFailure(); ++step) {
        expect_that_it_goes_on();
        renew_log();
    }
    ASSERT_FALSE(HasFailure()) << "step " << step;
    EXPECT_GT(step, 100);
    RecordProperty("steps", step - 1);
}

TEST_F(KilledConsole, AtAnyMoment) {
    std::mt19937 random(4711);  // NOLINT(cert-msc32-c,cert-msc51-cpp): the same moments each time
    std::uniform_int_distribution<int> moments(0, 15'000);
    for (int kill = 1; kill <= 200 && !HasFailure(); ++kill) {
        const bool ended = survives(
            [&] {
                MortalConsole mortal(folder_.path(), 0);
                mortal.run(start_up);
                while (!mortal.program.ended) work(mortal);
            },
            [&](pid_t child) {
                std::this_thread::sleep_for(std::chrono::microseconds(moments(random)));
                ::kill(child, SIGKILL);
            });
        EXPECT_FALSE(ended) << "it can't go on";
        expect_that_it_goes_on();
        renew_log();
        ASSERT_FALSE(HasFailure()) << "kill " << kill;
    }
}

}  // namespace
}  // namespace tessarine
