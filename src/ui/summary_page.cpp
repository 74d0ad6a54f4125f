#include "ui/summary_page.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "core/console_state.h"
#include "ui/chart_view.h"
#include "ui/event_door.h"
#include "ui/list_view.h"
#include "ui/widgets.h"

namespace tessarine {
namespace {

// One log's column of the page.
struct AnalysisLog {
    ListControl& list;
    const char *list_name, *label, *frame, *chart, *bars, *pie;
    QString list_purpose, chart_purpose;
};

QWidget* new_chart_frame(const AnalysisLog& log) {
    auto* frame = named(new QGroupBox, log.frame);
    auto* rows = new QVBoxLayout(frame);
    // In the least window the longest name and the largest number just fit between the sides.
    rows->setContentsMargins(1, kSpacing / 2, 1, kSpacing / 2);
    rows->setSpacing(kSpacing / 2);
    rows->addWidget(named(new ChartView, log.chart, log.chart_purpose), 1);
    auto* types = new QHBoxLayout;
    types->addStretch();
    types->addWidget(named(new QRadioButton, log.bars));
    types->addWidget(named(new QRadioButton, log.pie));
    types->addStretch();
    rows->addLayout(types);
    return frame;
}

void add_log(QGridLayout& grid, int column, const AnalysisLog& log) {
    auto* label = named(new QLabel, log.label);
    label->setWordWrap(true);
    auto* list = new ListView(log.list, ListView::Selects::OneRow, ListView::Widths::AnalysisTable);
    grid.addWidget(label, 0, column);
    grid.addWidget(named(list, log.list_name, log.list_purpose), 1, column);
    grid.addWidget(new_chart_frame(log), 3, column);
    grid.setColumnStretch(column, 1);
}

}  // namespace

QWidget* new_summary_page(EventDoor& door) {
    MainForm& form = door.console().Form1;
    auto* page = new QWidget;
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins(kSpacing, kSpacing, kSpacing, kSpacing);
    grid->setSpacing(kSpacing);
    add_log(*grid, 0,
            {form.ListView2, "ListView2", "Label6", "Frame8", "sysPie", "Option5", "Option4",
             QObject::tr("System events by code"), QObject::tr("System events by type")});
    add_log(*grid, 1,
            {form.ListView3, "ListView3", "Label7", "Frame9", "appPie", "Option1", "Option2",
             QObject::tr("Application events by code"), QObject::tr("Application events by type")});
    add_log(*grid, 2,
            {form.ListView4, "ListView4", "Label8", "Frame3", "SecPie", "Option6", "Option3",
             QObject::tr("Security events by code"), QObject::tr("Security events by type")});
    grid->addWidget(named(new QLabel, "lblEventDetail"), 2, 0, 1, 3);
    grid->setRowStretch(1, 3);
    grid->setRowStretch(3, 2);
    return page;
}

}  // namespace tessarine
