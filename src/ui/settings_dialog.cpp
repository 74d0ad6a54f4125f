#include "ui/settings_dialog.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

#include "core/console_state.h"
#include "qt/qt_text.h"
#include "ui/pages.h"
#include "ui/secret_edit.h"
#include "ui/up_down_view.h"
#include "ui/widgets.h"
#include "ui/window_keys.h"

namespace tessarine {
namespace {

constexpr int kLeastWidth = 540;

// Enter in a field presses none of them.
QPushButton* new_button(const char* name) {
    auto* button = named(new QPushButton, name);
    button->setAutoDefault(false);
    return button;
}

QHBoxLayout* in_a_row(std::initializer_list<QWidget*> widgets) {
    auto* row = new QHBoxLayout;
    row->setSpacing(kSpacing);
    for (QWidget* widget : widgets) row->addWidget(widget);
    return row;
}

QHBoxLayout* new_path_row(const char* field, const QString& purpose, const char* browse) {
    auto* row = in_a_row({named(new QLineEdit, field, purpose), new_button(browse)});
    row->setStretch(0, 1);
    return row;
}

// A short field for a number, with its arrows close beside it.
QWidget* new_number(const char* field, const QString& purpose, const char* arrows) {
    auto* both = new QWidget;
    auto* row = new QHBoxLayout(both);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(1);
    auto* number = named(new QLineEdit, field, purpose);
    number->setFixedWidth(number->fontMetrics().horizontalAdvance(QLatin1Char('0')) * 6);
    row->addWidget(number);
    row->addWidget(named(new UpDownView(*number), arrows, purpose));
    return both;
}

QHBoxLayout* to_the_left(QHBoxLayout* row) {
    row->addStretch();
    return row;
}

QVBoxLayout* new_audit_rows() {
    auto* rows = new QVBoxLayout;
    rows->addWidget(named(new QLabel, "Label9"));
    rows->addLayout(
        new_path_row("txtLogPath", QObject::tr("Folder of the logs"), "cmdLogPathBrowse"));
    for (const char* option : {"optAppend", "optOverwrite", "optMove"})
        rows->addWidget(named(new QRadioButton, option));
    rows->addWidget(named(new QLabel, "Label12"));
    rows->addLayout(
        new_path_row("txtArchivePath", QObject::tr("Folder of the archive"), "cmdArchiveBrowse"));
    rows->addWidget(named(new QLabel, "Label13"));
    return rows;
}

QFormLayout* new_credential_rows() {
    auto* rows = new QFormLayout;
    rows->addRow(named(new QCheckBox, "Check1"));
    rows->addRow(QObject::tr("Username"),
                 named(new QLineEdit, "TxtUsername", QObject::tr("Username")));
    rows->addRow(nullptr, named(new QLabel, "Label14"));
    rows->addRow(QObject::tr("Password"),
                 named(new SecretEdit, "TxtPassword", QObject::tr("Password")));
    return rows;
}

QVBoxLayout* new_schedule_rows() {
    auto* rows = new QVBoxLayout;
    rows->addWidget(named(new QCheckBox, "chkEnableschedule"));
    rows->addLayout(to_the_left(in_a_row(
        {named(new QLabel, "Label3"), new_number("txtHour", QObject::tr("Hour"), "UpDown1"),
         new QLabel(QStringLiteral(":")), new_number("txtMin", QObject::tr("Minute"), "UpDown3"),
         named(new QLabel, "Label4")})));
    rows->addLayout(to_the_left(in_a_row(
        {named(new QLabel, "Label10"), new_number("txtretlog", QObject::tr("Days back"), "UpDown2"),
         named(new QLabel, "Label11")})));
    rows->addWidget(named(new QLabel, "Label8"));
    rows->addLayout(new_path_row("txtHosts", QObject::tr("Host list file"), "Command4"));
    rows->addWidget(named(new QCheckBox, "Check6"));
    return rows;
}

QFormLayout* new_mail_rows() {
    auto* rows = new QFormLayout;
    rows->addRow(QObject::tr("To:"), named(new QLineEdit, "txtRecipient"));
    rows->addRow(QObject::tr("SMTP"), named(new QLineEdit, "txtSmtpServer"));
    rows->addRow(QObject::tr("Sender:"), named(new QLineEdit, "txtSender"));
    auto* lines = named(new QListWidget, "lstStatus", QObject::tr("What the mail server says"));
    lines->setSelectionMode(QAbstractItemView::NoSelection);
    lines->setFocusPolicy(Qt::TabFocus);
    rows->addRow(lines);
    return rows;
}

}  // namespace

SettingsDialog::SettingsDialog(EventDoor& door, QWidget* parent)
    : FormDialog(door, SettingsForm::kId, parent), pages_(new QStackedWidget) {
    pages_->addWidget(new_page(0, new_audit_rows(), new_button("cmdAuditSave")));
    pages_->addWidget(new_page(1, new_credential_rows(), new_button("Command2")));
    pages_->addWidget(new_page(2, new_schedule_rows(), new_button("Command7")));
    auto* mail_buttons = new QWidget;
    auto* row = new QHBoxLayout(mail_buttons);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(new_button("Command1"));
    row->addWidget(new_button("Command3"));
    pages_->addWidget(new_page(3, new_mail_rows(), mail_buttons));

    auto* column = new QWidget;
    lay_out_pages(*column, named(new QTabBar, "TabStrip1", tr("Pages of the settings")), pages_);
    lay_out_over_status_bar(column, "st1");
    add_page_keys(*this, [column]() -> QWidget& { return *column; });
    setMinimumWidth(kLeastWidth);
    bind();
}

QWidget* SettingsDialog::new_page(int page, QLayout* rows, QWidget* save) {
    const SettingsForm& form = door().console().Form3.get();
    auto* frame = new QGroupBox(to_qt(form.SetFrame[static_cast<std::size_t>(page)].caption));
    auto* all = new QVBoxLayout(frame);
    all->setSpacing(kSpacing);
    all->addLayout(rows);
    // A list takes the room that is left; other pages leave it above their button.
    if (frame->findChild<QListWidget*>() == nullptr) all->addStretch();
    all->addWidget(save, 0, Qt::AlignRight);
    auto* whole = new QWidget;
    auto* around = new QVBoxLayout(whole);
    around->setContentsMargins(kSpacing, kSpacing, kSpacing, kSpacing);
    around->addWidget(frame);
    return whole;
}

void SettingsDialog::refresh() {
    if (const SettingsForm* form = door().console().Form3.if_loaded())
        pages_->setCurrentIndex(form->settings_tab - 1);
    FormDialog::refresh();
}

}  // namespace tessarine
