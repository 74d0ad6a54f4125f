#include "ui/custom_audit_dialog.h"

#include <QCalendarWidget>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QTextCharFormat>
#include <QVBoxLayout>

#include "core/forms/custom_audit_form.h"
#include "ui/widgets.h"

namespace tessarine {
namespace {

QWidget* new_calendar() {
    auto* calendar = named(new QCalendarWidget, "MonthView1");
    calendar->setAccessibleName(QObject::tr("Date of the audit"));
    calendar->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    // Qt's pure red for the weekend can't be read on a dark ground.
    for (const Qt::DayOfWeek day : {Qt::Saturday, Qt::Sunday})
        calendar->setWeekdayTextFormat(day, QTextCharFormat());
    return calendar;
}

QWidget* new_log_boxes() {
    auto* group = new QGroupBox(QObject::tr("Logs"));
    auto* column = new QVBoxLayout(group);
    for (const char* name : {"ChkSys", "ChkApp", "ChkSec"})
        column->addWidget(named(new QCheckBox, name));
    column->addStretch();
    return group;
}

}  // namespace

CustomAuditDialog::CustomAuditDialog(EventDoor& door, QWidget* parent)
    : FormDialog(door, CustomAuditForm::kId, parent) {
    auto* hosts = named(new QLabel, "lblHostName");
    // A name as long as a file can give must not widen the dialog.
    hosts->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto* choice = named(new QLabel, "Label1");
    // Room for the longest sentence, so that the dialog doesn't change its size with the date.
    choice->setMinimumWidth(
        fontMetrics().horizontalAdvance(QStringLiteral("Perform audit from: 00/00/0000 onwards")));
    auto* ok = named(new QPushButton, "Command1");
    ok->setDefault(true);

    auto* rows = new QGridLayout(this);
    rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    rows->setSpacing(kSpacing);
    auto* hosts_row = new QHBoxLayout;
    hosts_row->addWidget(new QLabel(tr("Hosts:")));
    hosts_row->addWidget(hosts, 1);
    rows->addLayout(hosts_row, 0, 0, 1, 2);
    rows->addWidget(new_log_boxes(), 1, 0);
    rows->addWidget(new_calendar(), 1, 1);
    rows->addWidget(named(new QCheckBox, "chkSpecificDate"), 2, 1);
    rows->addWidget(choice, 3, 0, 1, 2);
    rows->addWidget(ok, 4, 1, Qt::AlignRight);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    bind();
}

}  // namespace tessarine
