#include "ui/directory_dialog.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "core/console_state.h"
#include "ui/list_view.h"
#include "ui/widgets.h"
#include "ui/window_keys.h"

namespace tessarine {
namespace {

constexpr QSize kFirstSize(560, 480);

QPushButton* new_button(const char* name) {
    auto* button = named(new QPushButton, name);
    button->setAutoDefault(false);
    return button;
}

QWidget* new_domain_fields(QPushButton& enumerate) {
    auto* fields = new QWidget;
    auto* row = new QHBoxLayout(fields);
    row->setContentsMargins(0, 0, 0, 0);
    auto* first = named(new QLineEdit, "txtDC1");
    auto* second = named(new QLineEdit, "txtDC2");
    row->addWidget(first, 1);
    row->addWidget(new QLabel(QStringLiteral(".")));
    row->addWidget(second, 1);
    for (QLineEdit* field : {first, second}) press_on_enter(*field, enumerate);
    return fields;
}

// Its texts come from a directory: however long, they don't widen the window.
QWidget* new_names(QPushButton& enumerate) {
    auto* names = named(new QComboBox, "Combo1", QObject::tr("Container or organizational unit"));
    names->setEditable(true);
    names->setInsertPolicy(QComboBox::NoInsert);
    // What is typed counts as it is.
    names->setCompleter(nullptr);
    names->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    press_on_enter(*names->lineEdit(), enumerate);
    return names;
}

QWidget* new_kinds() {
    auto* frame = named(new QGroupBox, "KindFrame");
    auto* row = new QHBoxLayout(frame);
    for (const char* kind : {"optOU", "optCont"}) row->addWidget(named(new QRadioButton, kind));
    return frame;
}

}  // namespace

DirectoryDialog::DirectoryDialog(EventDoor& door, QWidget* parent)
    : FormDialog(door, DirectoryForm::kId, parent),
      objects_(new ListView(door.console().frmADS->ListView1, ListView::Selects::OneRow)) {
    auto* frame = named(new QGroupBox, "DetailsFrame");
    auto* grid = new QGridLayout(frame);
    grid->setSpacing(kSpacing);
    grid->setColumnStretch(1, 1);
    auto* list_containers = new_button("Command1");
    auto* list_objects = new_button("Command2");
    grid->addWidget(named(new QLabel, "DomainLabel"), 0, 0);
    grid->addWidget(new_domain_fields(*list_containers), 0, 1);
    grid->addWidget(list_containers, 0, 2);
    grid->addWidget(named(new QLabel, "ContainersLabel"), 1, 0);
    grid->addWidget(new_names(*list_objects), 1, 1, 1, 2);
    grid->addWidget(new_kinds(), 2, 1);
    grid->addWidget(list_objects, 2, 2);
    grid->addWidget(named(objects_, "ListView1"), 3, 0, 1, 3);
    grid->addWidget(new_button("Command3"), 4, 0, 1, 3, Qt::AlignRight);
    lay_out_over_status_bar(frame, "st1");
    bind();
    resize(kFirstSize);
}

// A form that is unloaded takes its list along, of which a table that is hidden would still ask.
void DirectoryDialog::refresh() {
    if (!door().console().frmADS.loaded()) objects_->setModel(nullptr);
    FormDialog::refresh();
}

}  // namespace tessarine
