#include "ui/add_host_dialog.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/forms/add_host_form.h"
#include "qt/qt_text.h"
#include "ui/form_access.h"
#include "ui/status_bar_view.h"
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
    auto* status = new StatusBarView("St2", {1});
    status->setSizeGripEnabled(false);

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    auto* inner = new QVBoxLayout;
    inner->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    inner->addWidget(frame);
    rows->addLayout(inner);
    rows->addWidget(status);
    setMinimumWidth(380);
    bind();
}

}  // namespace tessarine
