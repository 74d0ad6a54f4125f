// The walk through the console.
#pragma once

#include <QString>
#include <QStringList>
#include <vector>

#include "app/console_program.h"
#include "tour/album.h"
#include "tour/user.h"
#include "tour/watch.h"

namespace tessarine::tour {

/// Drives the real window as its user would. Each step is checked, and a step that goes wrong ends
/// the tour with words.
class Tour {
  public:
    /// `hosts_file` is the host list that the user loads.
    Tour(ConsoleProgram& program, const QString& folder, const QString& hosts_file);

    void walk();

  private:
    void show_menus();
    void find_hosts();
    void enumerate_in(QWidget& dialog);
    void load_hosts();
    void audit_all_hosts();
    void view_three_hosts();
    void show_menu_of(const QString& table, int row, const QString& menu, const QString& picture);
    QString unlisted_code(const QString& table) const;
    void read_an_event();
    void export_page();
    void highlight_a_code();
    void search_all_hosts();
    void analyse_all_hosts();
    void export_workbook();
    void show_graph();
    void audit_from_a_day();
    void add_a_host();
    void find_hosts_in_the_directory();
    void set_up_the_console();
    QStringList hosts_for_a_run() const;
    void schedule_a_run_for_now(const User& in_dialog);
    void await_the_scheduled_run();
    void show_report_and_mail();
    void show_text(const QString& title, const QString& path);
    void show_about();
    void keep_store();

    void view(int row);
    void show_logs_of_first_host();
    void highlight(const QString& code);
    void check_results();
    bool has_picture(int row, const QString& description) const;
    bool any_red_row() const;
    int first_filled_table() const;

    ConsoleProgram& program_;
    QString hosts_file_;
    Album album_;
    User user_;
    Watch watch_;
    std::vector<int> audited_;  // rows of the hosts whose audit went well
};

}  // namespace tessarine::tour
