#include "ui/add_host_dialog.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>

#include "core/forms/add_host_form.h"
#include "ui/widgets.h"

namespace tessarine {

AddHostDialog::AddHostDialog(EventDoor& door, QWidget* parent)
    : FormDialog(door, AddHostForm::kId, parent) {
    auto* frame = named(new QGroupBox, "HostFrame");
    auto* add = named(new QPushButton, "Command1");
    // Enter belongs to the field, which has an event for it.
    add->setAutoDefault(false);
    auto* row = new QHBoxLayout(frame);
    row->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    row->addWidget(named(new QLineEdit, "AddHost", tr("Name of the host")), 1);
    row->addWidget(add);
    lay_out_over_status_bar(frame, "St2");
    setMinimumWidth(380);
    bind();
}

}  // namespace tessarine
