// The steps through the settings, and the run that they schedule.
#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTest>
#include <QTime>
#include <QVBoxLayout>

#include "core/console_state.h"
#include "qt/qt_text.h"
#include "tour/failure.h"
#include "tour/tour.h"
#include "ui/form_windows.h"

namespace tessarine::tour {
namespace {

constexpr int kMostPauses = 600;

// Whether all lines of the file are whole records: a run with an alert list ends at a broken one.
bool has_whole_records(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return false;
    while (!file.atEnd())
        if (file.readLine().count('|') < 7) return false;
    return true;
}

void save(const User& in_dialog, const QString& button, const QString& status) {
    in_dialog.click(button);
    check(in_dialog.find<QLabel>("st1_panel1").text() == status, "not told: " + status);
}

QString text_of(const QString& path) {
    QFile file(path);
    check(file.open(QIODevice::ReadOnly), path + " can't be read");
    return QString::fromLatin1(file.readAll());
}

// The file of the folder that was written last.
QString newest(const QString& folder, const QString& names) {
    const QStringList files = QDir(folder).entryList({names}, QDir::Files, QDir::Time);
    check(!files.isEmpty(), "there is no " + names + " in " + folder);
    return QDir(folder).filePath(files.first());
}

}  // namespace

// The schedule comes last: its run begins within three seconds.
void Tour::set_up_the_console() {
    watch_.expect("Form3", [this](QWidget& dialog) {
        const User in_dialog(dialog);
        album_.take("settings-audit");
        save(in_dialog, "cmdAuditSave", "Audit Settings Saved....");
        in_dialog.click_tab("TabStrip1", 1);
        album_.take("settings-credentials");
        save(in_dialog, "Command2", "Credential Settings Saved....");
        in_dialog.click_tab("TabStrip1", 3);
        in_dialog.type("txtRecipient", "admin@sample.example;second@sample.example");
        in_dialog.click("Command1");
        const auto& talk = in_dialog.find<QListWidget>("lstStatus");
        check(talk.count() > 0 && talk.item(talk.count() - 1)->text() == "Mail Sent Successfully!",
              "the test mail is not sent");
        album_.take("settings-mail");
        save(in_dialog, "Command3", "Email Settings Saved....");
        in_dialog.click_tab("TabStrip1", 2);
        schedule_a_run_for_now(in_dialog);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    user_.choose("prefs", "settings");
}

// The host with the most events of those whose records are whole, and one whose audit failed.
QStringList Tour::hosts_for_a_run() const {
    const QDir data(to_qt(program_.console().Form3->txtLogPath.text).replace('\\', '/') + "/Data");
    QString fullest;
    QString failed;
    qint64 most = -1;
    for (int row = 0; row < user_.rows("ListView1"); ++row) {
        const QString host = user_.cell("ListView1", row, 0);
        if (has_picture(row, "audit failed")) failed = host;
        qint64 size = 0;
        bool whole = has_picture(row, "audited");
        for (const char* log : {"_system.log", "_application.log", "_security.log"}) {
            const QString path = data.filePath(host + log);
            whole = whole && has_whole_records(path);
            size += QFileInfo(path).size();
        }
        if (whole && size > most) {
            most = size;
            fullest = host;
        }
    }
    QStringList hosts{fullest, failed};
    hosts.removeAll(QString());
    return hosts;
}

void Tour::schedule_a_run_for_now(const User& in_dialog) {
    const QString hosts = album_.folder().filePath("scheduled-hosts.txt");
    QFile file(hosts);
    check(file.open(QIODevice::WriteOnly | QIODevice::Text), hosts + " can't be written");
    for (const QString& host : hosts_for_a_run()) file.write(host.toLatin1() + "\n");
    file.close();
    if (QTime::currentTime().second() > 50) User::pause(12'000);
    const QTime now = QTime::currentTime();
    in_dialog.type("txtHour", now.toString("HH"));
    in_dialog.type("txtMin", now.toString("mm"));
    in_dialog.type("txtretlog", "5");
    in_dialog.type("txtHosts", hosts);
    auto& enabled = in_dialog.find<QCheckBox>("chkEnableschedule");
    if (!enabled.isChecked()) in_dialog.click("chkEnableschedule");
    in_dialog.click("Check6");
    album_.take("settings-schedule");
    save(in_dialog, "Command7", "Schedule Audit Settings Saved....");
}

void Tour::show_text(const QString& title, const QString& path) {
    QDialog window(&program_.windows().main_window());
    window.setWindowTitle(QFileInfo(path).fileName());
    auto* text = new QPlainTextEdit(text_of(path));
    text->setReadOnly(true);
    text->setLineWrapMode(QPlainTextEdit::NoWrap);
    (new QVBoxLayout(&window))->addWidget(text);
    window.resize(760, 420);
    window.show();
    User::pause();
    album_.take(title);
}

void Tour::show_report_and_mail() {
    const QString log_path = to_qt(program_.console().Form3->txtLogPath.text).replace('\\', '/');
    const QString report = newest(log_path + "/Logs", "*_AutoAudit.log");
    // A mail server that has the mail may still be writing it.
    User::pause(1000);
    const QString mail = newest(log_path + "/mail/new", "*");
    const QString attached = QString::fromLatin1(text_of(report).toLatin1().toBase64());
    check(text_of(mail).remove('\r').remove('\n').contains(attached),
          "the mail doesn't have the report");
    show_text("report", report);
    show_text("mail", mail);
}

void Tour::await_the_scheduled_run() {
    const auto& panel = user_.find<QLabel>("st1_panel1");
    const auto finished = [&panel] { return panel.text().startsWith("Auto Audit Finished At"); };
    for (int i = 0; i < kMostPauses && !finished(); ++i) User::pause(100);
    check(finished(), "the scheduled run doesn't come to its end: " + panel.text());
    album_.take("after-scheduled-run");
    show_report_and_mail();
    // No run is to surprise whoever starts the console next.
    watch_.expect("Form3", [](QWidget& dialog) {
        const User in_dialog(dialog);
        in_dialog.click_tab("TabStrip1", 2);
        in_dialog.click("chkEnableschedule");
        save(in_dialog, "Command7", "Schedule Audit Settings Saved....");
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    user_.choose("prefs", "settings");
}

}  // namespace tessarine::tour
