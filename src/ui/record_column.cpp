#include "ui/record_column.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>
#include <vector>

#include "core/console_state.h"
#include "ui/list_view.h"
#include "ui/pages.h"
#include "ui/pictures.h"
#include "ui/qt_text.h"
#include "ui/widgets.h"

namespace tessarine {
namespace {

// A box that shows or hides one type of event, with the picture of that type's rows.
struct TypeBox {
    const char* name;
    int picture;
};

struct EventPage {
    ListControl& list;
    const char* list_name;
    const char* filter_name;
    QString purpose;
    std::vector<TypeBox> boxes;
};

QWidget* new_filter(const EventPage& page) {
    auto* filter = named(new QWidget, page.filter_name);
    auto* row = new QHBoxLayout(filter);
    row->setContentsMargins(kSpacing, kSpacing / 2, kSpacing, kSpacing / 2);
    row->setSpacing(2 * kSpacing);
    row->addWidget(new QLabel(QObject::tr("Show:")));
    for (const TypeBox& type : page.boxes) {
        auto* box = named(new QCheckBox, type.name);
        box->setIcon(list_picture(type.picture).value<QIcon>());
        row->addWidget(box);
    }
    row->addStretch();
    return filter;
}

QWidget* new_event_page(const EventPage& page) {
    auto* table =
        named(new ListView(page.list, ListView::Selects::OneRow, ListView::Widths::EventTable),
              page.list_name, page.purpose);
    auto* widget = new QWidget;
    auto* rows = new QVBoxLayout(widget);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(new_filter(page));
    rows->addWidget(table, 1);
    return widget;
}

// One log's part of the analysis: its caption, its table and the place of its chart.
struct AnalysisLog {
    ListControl& list;
    const char *list_name, *label, *chart;
    const std::string& chart_tip;
    QString purpose;
};

QWidget* new_chart_place(const AnalysisLog& log) {
    auto* place = named(new QLabel(QObject::tr("%1: no chart yet").arg(log.purpose)), log.chart);
    place->setFrameStyle(QFrame::StyledPanel | QFrame::Plain);
    place->setAlignment(Qt::AlignCenter);
    place->setWordWrap(true);
    place->setMinimumHeight(140);
    place->setToolTip(to_qt(log.chart_tip));
    return place;
}

void add_analysis_log(QGridLayout& grid, int column, const AnalysisLog& log) {
    auto* label = named(new QLabel, log.label);
    label->setWordWrap(true);
    auto* list = new ListView(log.list, ListView::Selects::OneRow);
    grid.addWidget(label, 0, column);
    grid.addWidget(named(list, log.list_name, log.purpose), 1, column);
    grid.addWidget(new_chart_place(log), 3, column);
    grid.setColumnStretch(column, 1);
}

}  // namespace

RecordColumn::RecordColumn(EventDoor& door) : door_(door), pages_(new QStackedWidget) {
    MainForm& form = door.console().Form1;
    pages_->addWidget(
        new_event_page({form.SystemList,
                        "SystemList",
                        "SysFilter",
                        tr("System log"),
                        {{"SysErrors", 4}, {"SysWarnings", 2}, {"SysInformations", 3}}}));
    pages_->addWidget(
        new_event_page({form.ApplicationList,
                        "ApplicationList",
                        "AppFilter",
                        tr("Application log"),
                        {{"AppErrors", 4}, {"AppWarnings", 2}, {"AppInformations", 3}}}));
    pages_->addWidget(new_event_page({form.SecurityList,
                                      "SecurityList",
                                      "SecFilter",
                                      tr("Security log"),
                                      {{"SecSucc", 6}, {"SecFail", 5}}}));
    pages_->addWidget(new_analysis_page());
    lay_out_pages(*this, named(new QTabBar, "TabStrip2", tr("Event logs")), pages_);
}

void RecordColumn::refresh() {
    pages_->setCurrentIndex(door_.console().Form1.main_tab - 1);
}

QWidget* RecordColumn::new_analysis_page() {
    MainForm& form = door_.console().Form1;
    auto* page = new QWidget;
    page->setEnabled(door_.leads_on(FormId::Form1, "Command3", EventKind::Click));
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins(kSpacing, kSpacing, kSpacing, kSpacing);
    grid->setSpacing(kSpacing);
    add_analysis_log(*grid, 0,
                     {form.ListView2, "ListView2", "Label6", "sysPie", form.sysPie.tool_tip,
                      tr("System events by code")});
    add_analysis_log(*grid, 1,
                     {form.ListView3, "ListView3", "Label7", "appPie", form.appPie.tool_tip,
                      tr("Application events by code")});
    add_analysis_log(*grid, 2,
                     {form.ListView4, "ListView4", "Label8", "SecPie", form.SecPie.tool_tip,
                      tr("Security events by code")});
    grid->addWidget(named(new QLabel, "lblEventDetail"), 2, 0, 1, 3);
    grid->setRowStretch(1, 3);
    grid->setRowStretch(3, 2);
    return page;
}

}  // namespace tessarine
