#include "tour/tour.h"

#include <QAction>
#include <QCalendarWidget>
#include <QFile>
#include <QLineEdit>
#include <QProgressBar>
#include <QSet>
#include <QTableView>
#include <QTest>
#include <array>

#include "core/code_page.h"
#include "core/console_state.h"
#include "platform/shell.h"
#include "tour/failure.h"
#include "tour/store_copy.h"
#include "tour/url_keeper.h"
#include "ui/form_windows.h"

namespace tessarine::tour {
namespace {

constexpr std::array<const char*, 3> kTables = {"SystemList", "ApplicationList", "SecurityList"};
constexpr int kEventColumn = 4;
constexpr std::size_t kHostsToView = 3;
// The day from which the custom audit asks, back from today.
constexpr int kDaysBack = 3;

QStringList hosts_in(const QString& path) {
    QFile file(path);
    check(file.open(QIODevice::ReadOnly | QIODevice::Text),
          "the host list " + path + " can't be read");
    QStringList hosts;
    for (const QString& line : QString::fromLatin1(file.readAll()).split(QLatin1Char('\n')))
        if (!line.isEmpty()) hosts += line.toUpper();
    return hosts;
}

}  // namespace

Tour::Tour(ConsoleProgram& program, const QString& folder, const QString& hosts_file)
    : program_(program),
      hosts_file_(hosts_file),
      album_(folder),
      user_(program.windows().main_window()) {}

void Tour::walk() {
    program_.start();
    User::pause(300);
    check(program_.windows().main_window().isVisible(), "the main window doesn't come up");
    album_.take("main-window");
    show_menus();
    find_hosts();
    load_hosts();
    audit_all_hosts();
    view_three_hosts();
    read_an_event();
    highlight_a_code();
    search_all_hosts();
    analyse_all_hosts();
    export_workbook();
    show_graph();
    audit_from_a_day();
    add_a_host();
    find_hosts_in_the_directory();
    set_up_the_console();
    await_the_scheduled_run();
    show_about();
    watch_.check_all_seen();
    keep_store();
}

void Tour::show_menus() {
    for (const char* menu : {"file", "hosts", "run", "prefs", "Help"}) {
        user_.open_menu(menu);
        album_.take(QStringLiteral("menu-%1").arg(QString(menu).toLower()));
        user_.close_menu();
    }
}

void Tour::load_hosts() {
    watch_.expect_chooser([this](QWidget& chooser) {
        const User in_chooser(chooser);
        in_chooser.type("fileNameEdit", hosts_file_);
        User::pause();
        album_.take("choose-host-list");
        QTest::keyClick(&in_chooser.find("fileNameEdit"), Qt::Key_Return);
    });
    user_.choose("hosts", "loadfrmlist");
    const QStringList hosts = hosts_in(hosts_file_);
    check(user_.rows("ListView1") == hosts.size(), "not all hosts have been loaded");
    for (int row = 0; row < hosts.size(); ++row)
        check(user_.cell("ListView1", row, 0) == hosts[row], hosts[row] + " has not been loaded");
    album_.take("host-list");
}

void Tour::audit_all_hosts() {
    watch_.expect("ConCheck", [this](QWidget&) { album_.take("reachability"); });
    bool seen = false;
    watch_.also([this, &seen] {
        const auto& bar = user_.find<QProgressBar>("pbar1");
        if (seen || !bar.isVisible() || bar.value() == 0) return;
        seen = true;
        album_.take("audit-running");
    });
    user_.choose("run", "runFullauditAllhost");
    watch_.also({});
    check(seen, "the audit's progress hasn't been shown");
    check_results();
    album_.take("audit-results");
}

void Tour::check_results() {
    for (int row = 0; row < user_.rows("ListView1"); ++row) {
        const bool audited = has_picture(row, "audited");
        check(audited || has_picture(row, "audit failed"),
              user_.cell("ListView1", row, 0) + " has no result");
        if (audited) audited_.push_back(row);
    }
    check(!audited_.empty(), "not one host could be audited");
}

bool Tour::has_picture(int row, const QString& description) const {
    const QModelIndex result = user_.find<QTableView>("ListView1").model()->index(row, 1);
    return result.data(Qt::AccessibleDescriptionRole).toString() == description;
}

void Tour::view(int row) {
    watch_.expect("MyMenu", [](QWidget& menu) { User::pick(menu, "vieweventlogs"); });
    user_.right_click_row("ListView1", row);
    const QString shown = user_.find<QLineEdit>("txtSelectedHost").text();
    check(shown == "Host: " + user_.cell("ListView1", row, 0),
          "the wrong logs are shown: " + shown);
}

void Tour::show_menu_of(const QString& table, int row, const QString& menu,
                        const QString& picture) {
    watch_.expect(menu, [this, picture](QWidget&) {
        album_.take(picture);
        user_.close_menu();
    });
    user_.right_click_row(table, row);
}

void Tour::view_three_hosts() {
    show_menu_of("ListView1", audited_.front(), "MyMenu", "host-menu");
    for (std::size_t i = 0; i < audited_.size() && i < kHostsToView; ++i) {
        view(audited_[i]);
        if (i == 0) show_logs_of_first_host();
        user_.click_tab("TabStrip2", 0);
        album_.take("logs-of-" + user_.cell("ListView1", audited_[i], 0).toLower());
    }
}

void Tour::show_logs_of_first_host() {
    for (int tab = 1; tab <= 3; ++tab) {
        user_.click_tab("TabStrip2", tab);
        album_.take(QStringLiteral("tab-%1").arg(tab + 1));
    }
}

void Tour::read_an_event() {
    view(audited_.front());
    const int all = user_.rows("SystemList");
    user_.click("SysInformations");
    check(user_.rows("SystemList") < all, "the box hides nothing");
    album_.take("filtered");
    user_.click("SysInformations");
    check(user_.rows("SystemList") == all, "the box doesn't bring its rows back");
    user_.click_head("SystemList", kEventColumn);
    album_.take("sorted");
    watch_.expect("Form2", [this](QWidget& dialog) {
        const User in_dialog(dialog);
        album_.take("event-details");
        in_dialog.click("CmdUp");
        in_dialog.click("CmdUp");
        album_.take("event-details-first");
        in_dialog.click("CmdDown");
        in_dialog.click("Command1");
    });
    user_.double_click_row("SystemList", 1);
    check(program_.console().Form1.SystemList.selected_item() == 2, "the table didn't follow");
    export_page();
}

// The page is kept beside the pictures, and no browser is started.
void Tour::export_page() {
    QString opened;
    UrlKeeper keeper([&opened](const QUrl& url) { opened = url.toLocalFile(); });
    user_.find<QAction>("Toolbar1_15").trigger();
    User::pause();
    check(opened.endsWith("/tempop.html"), "the page has not been opened");
    const QString copy = album_.folder().filePath("page.html");
    QFile::remove(copy);
    check(QFile::copy(opened, copy), "the page can't be copied to " + copy);
}

// -1 when all three are empty.
int Tour::first_filled_table() const {
    for (int i = 0; i < static_cast<int>(kTables.size()); ++i)
        if (user_.rows(kTables[static_cast<std::size_t>(i)]) > 0) return i;
    return -1;
}

// The first code of the table that isn't in the alert list yet, or else just the first one.
QString Tour::unlisted_code(const QString& table) const {
    QSet<QString> listed;
    for (int row = 0; row < user_.rows("AlertList"); ++row)
        listed.insert(user_.cell("AlertList", row, 0));
    for (int row = 0; row < user_.rows(table); ++row)
        if (const QString code = user_.cell(table, row, kEventColumn); !listed.contains(code))
            return code;
    return user_.cell(table, 0, kEventColumn);
}

void Tour::highlight_a_code() {
    for (const int row : audited_) {
        view(row);
        const int table = first_filled_table();
        if (table < 0) continue;
        highlight(unlisted_code(kTables[static_cast<std::size_t>(table)]));
        view(row);
        user_.click_tab("TabStrip2", table);
        check(any_red_row(), "no row is highlighted");
        album_.take("highlighted");
        show_menu_of(kTables[static_cast<std::size_t>(table)], 0, "popmeup2", "event-menu");
        return;
    }
    fail("no host that was audited has an event");
}

void Tour::highlight(const QString& code) {
    user_.click_tab("TabStrip1", 2);
    const int before = user_.rows("AlertList");
    user_.type("TxtAlert", code);
    user_.click("Command1");
    check(user_.rows("AlertList") == before + 1, "the code " + code + " is not in the list");
    album_.take("alert-list");
    if (!program_.console().Form1.highlightpatt.checked) user_.choose("prefs", "highlightpatt");
    check(program_.console().Form1.highlightpatt.checked, "Highlight Alert Patterns has no mark");
    user_.click_tab("TabStrip1", 0);
}

bool Tour::any_red_row() const {
    for (const char* table : kTables) {
        const QAbstractItemModel* model = user_.find<QTableView>(table).model();
        for (int row = 0; row < model->rowCount(); ++row)
            if (model->index(row, 0).data(Qt::ForegroundRole).isValid()) return true;
    }
    return false;
}

void Tour::search_all_hosts() {
    user_.click_tab("TabStrip1", 1);
    for (const char* box : {"Check1", "Check2", "Check3"}) user_.click(box);
    user_.type("TxtSearch", "the service");
    user_.click("Command4");
    check(user_.rows("SystemList") > 0, "the search finds nothing");
    user_.click_tab("TabStrip2", 0);
    album_.take("search");
}

void Tour::analyse_all_hosts() {
    for (const char* box : {"Check4", "Check5", "Check6"}) user_.click(box);
    user_.click("Command3");
    check(user_.rows("ListView2") > 0, "the analysis finds nothing");
    user_.click_row("ListView2", 0);
    album_.take("analysis");
    show_menu_of("ListView2", 0, "popmeup3", "analysis-menu");
    for (const char* pie : {"Option4", "Option2", "Option3"}) user_.click(pie);
    album_.take("analysis-as-pies");
    user_.click_tab("TabStrip1", 0);
    user_.click_tab("TabStrip2", 0);
}

// The workbook is kept beside the pictures. Where the desktop has no program for it the console
// says so, and where the workbook is.
void Tour::export_workbook() {
    QString path;
    UrlKeeper keeper([&path](const QUrl& url) { path = url.toLocalFile(); });
    const bool opens = program_.console().platform.shell.has_program_for("analysis.xlsx");
    if (!opens)
        watch_.expect_message([this](QWidget& message) {
            album_.take("no-program-for-workbooks");
            QTest::keyClick(&message, Qt::Key_Return);
        });
    user_.click_tab("TabStrip1", 1);
    user_.click_tab("TabStrip2", 3);
    user_.click("Command7");
    User::pause();
    user_.click_tab("TabStrip1", 0);
    user_.click_tab("TabStrip2", 0);
    const std::string place = program_.console().Form1.st1.text(1);
    if (!opens) path = QString::fromStdString(to_utf8(place)).section(QStringLiteral(" in "), 1);
    const QString copy = album_.folder().filePath("analysis.xlsx");
    QFile::remove(copy);
    check(QFile::rename(path, copy), "the workbook " + path + " can't be moved to " + copy);
}

void Tour::show_graph() {
    view(audited_.front());
    watch_.expect("MyMenu", [](QWidget& menu) { User::pick(menu, "graphicalview"); });
    watch_.expect("Form5", [this](QWidget& dialog) {
        const User in_dialog(dialog);
        album_.take("graph");
        in_dialog.click("Option3");
        in_dialog.click("Option4");
        album_.take("graph-as-pie");
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    user_.right_click_row("ListView1", audited_.front());
}

void Tour::audit_from_a_day() {
    watch_.expect("MyMenu", [](QWidget& menu) { User::pick(menu, "custaudit"); });
    watch_.expect("Form4", [this](QWidget& dialog) {
        const User in_dialog(dialog);
        auto& days = in_dialog.find("qt_calendar_calendarview");
        days.setFocus();
        for (int i = 0; i < kDaysBack; ++i) QTest::keyClick(&days, Qt::Key_Left);
        QTest::keyClick(&days, Qt::Key_Return);
        User::pause();
        album_.take("custom-audit");
        in_dialog.click("Command1");
    });
    user_.right_click_row("ListView1", audited_.front());
    check(program_.console().Form1.AuditStat.text == "ok", "the custom audit failed");
    view(audited_.front());
    album_.take("after-custom-audit");
}

void Tour::add_a_host() {
    const int before = user_.rows("ListView1");
    watch_.expect("Form6", [this, before](QWidget& dialog) {
        const User in_dialog(dialog);
        in_dialog.type("AddHost", "branch-pc9");
        album_.take("add-host");
        QTest::keyClick(&in_dialog.find("AddHost"), Qt::Key_Return);
        User::pause();
        check(user_.rows("ListView1") == before + 1, "the host has not been added");
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    user_.choose("hosts", "addhostmanually");
    check(user_.cell("ListView1", before, 0) == "BRANCH-PC9", "the added host has another name");
}

void Tour::show_about() {
    watch_.expect("AboutForm", [this](QWidget& dialog) {
        album_.take("about");
        User(dialog).click("close");
    });
    user_.choose("Help", "About");
}

void Tour::keep_store() {
    const std::string& log_path = program_.console().Form3->txtLogPath.text;
    copy_store(log_path, album_.folder().filePath("store"));
}

}  // namespace tessarine::tour
