#include "ui/graph_dialog.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "core/forms/graph_form.h"
#include "qt/qt_text.h"
#include "ui/chart_view.h"
#include "ui/pictures.h"
#include "ui/widgets.h"

namespace tessarine {
namespace {

constexpr QSize kFirstSize(640, 420);
constexpr int kPictureSize = 16;

QWidget* new_log_group() {
    auto* group = named(new QGroupBox, "Frame2");
    auto* rows = new QVBoxLayout(group);
    for (const char* log : {"Option1", "Option2", "Option3"})
        rows->addWidget(named(new QRadioButton, log));
    return group;
}

// In a widget of their own: as children of the window they would be one group with the logs'
// buttons.
QWidget* new_type_buttons() {
    auto* types = new QWidget;
    auto* row = new QHBoxLayout(types);
    row->setContentsMargins(0, 0, 0, 0);
    for (const char* type : {"Option5", "Option4"}) row->addWidget(named(new QRadioButton, type));
    return types;
}

QWidget* new_legend() {
    auto* group = named(new QGroupBox, "Frame1");
    auto* grid = new QGridLayout(group);
    for (const LegendEntry& entry : kGraphLegend) {
        auto* picture = new QLabel;
        picture->setPixmap(list_picture(entry.icon).value<QIcon>().pixmap(kPictureSize));
        const int row = grid->rowCount();
        grid->addWidget(new_colour_box(entry.colour), row, 0);
        grid->addWidget(picture, row, 1);
        grid->addWidget(new QLabel(to_qt(entry.label)), row, 2);
    }
    grid->setColumnStretch(2, 1);
    return group;
}

}  // namespace

GraphDialog::GraphDialog(EventDoor& door, QWidget* parent)
    : FormDialog(door, GraphForm::kId, parent) {
    auto* choices = new QVBoxLayout;
    choices->setSpacing(kSpacing);
    choices->addWidget(new_log_group());
    choices->addWidget(new_type_buttons());
    choices->addWidget(new_legend());
    choices->addStretch();

    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    columns->setSpacing(kMargin);
    columns->addWidget(named(new ChartView, "pie", tr("Events by type")), 1);
    columns->addLayout(choices);
    bind();
    resize(kFirstSize);
}

}  // namespace tessarine
