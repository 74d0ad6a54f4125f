#include "ui/record_column.h"

#include <QCheckBox>
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
#include "ui/summary_page.h"
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

}  // namespace

RecordColumn::RecordColumn(EventDoor& door) : door_(door), pages_(new QStackedWidget) {
    MainForm& form = door.console().Form1;
    pages_->addWidget(new_event_page({form.SystemList,
                                      "SystemList",
                                      "SysFilter",
                                      tr("System log"),
                                      {{"SysErrors", kIconError},
                                       {"SysWarnings", kIconWarning},
                                       {"SysInformations", kIconInformation}}}));
    pages_->addWidget(new_event_page({form.ApplicationList,
                                      "ApplicationList",
                                      "AppFilter",
                                      tr("Application log"),
                                      {{"AppErrors", kIconError},
                                       {"AppWarnings", kIconWarning},
                                       {"AppInformations", kIconInformation}}}));
    pages_->addWidget(
        new_event_page({form.SecurityList,
                        "SecurityList",
                        "SecFilter",
                        tr("Security log"),
                        {{"SecSucc", kIconAuditSuccess}, {"SecFail", kIconAuditFailure}}}));
    pages_->addWidget(new_summary_page(door));
    lay_out_pages(*this, named(new QTabBar, "TabStrip2", tr("Event logs")), pages_);
}

// The tables on hidden pages too, so that all three keep the same widths.
void RecordColumn::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    for (const char* name : {"SystemList", "ApplicationList", "SecurityList"})
        pages_->findChild<ListView*>(name)->share_width(pages_->width());
}

void RecordColumn::refresh() {
    pages_->setCurrentIndex(door_.console().Form1.main_tab - 1);
}

}  // namespace tessarine
