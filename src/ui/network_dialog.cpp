#include "ui/network_dialog.h"

#include <QPushButton>
#include <QVBoxLayout>

#include "core/console_state.h"
#include "ui/list_view.h"
#include "ui/widgets.h"

namespace tessarine {

NetworkDialog::NetworkDialog(EventDoor& door, QWidget* parent)
    : FormDialog(door, NetworkForm::kId, parent),
      groups_(new ListView(door.console().Form7->ListView1, ListView::Selects::OneRow)) {
    auto* content = new QWidget;
    auto* rows = new QVBoxLayout(content);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(kSpacing);
    rows->addWidget(named(groups_, "ListView1", tr("Workgroups and domains")), 1);
    auto* enumerate = named(new QPushButton, "Command1");
    enumerate->setDefault(true);
    rows->addWidget(enumerate, 0, Qt::AlignRight);
    lay_out_over_status_bar(content, "st1");
    resize(420, 360);
    bind();
}

void NetworkDialog::refresh() {
    if (!door().console().Form7.loaded()) groups_->setModel(nullptr);
    FormDialog::refresh();
}

}  // namespace tessarine
