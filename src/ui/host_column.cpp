#include "ui/host_column.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

#include "core/console_state.h"
#include "qt/qt_text.h"
#include "ui/list_view.h"
#include "ui/pages.h"
#include "ui/widgets.h"
#include "ui/window_keys.h"

namespace tessarine {
namespace {

// Pixels at 96 dpi; the right side takes what the window has beyond it.
constexpr int kColumnWidth = 292;

QPushButton* new_button(const char* name) {
    return named(new QPushButton, name);
}

// One of the two lists of event codes with its field and its buttons.
struct CodeGroup {
    ListControl& list;
    const char *frame, *list_name, *field, *add, *remove;
    QString field_purpose, list_purpose;
};

QWidget* new_code_group(const CodeGroup& group) {
    auto* frame = named(new QGroupBox, group.frame);
    auto* rows = new QVBoxLayout(frame);
    auto* entry = new QHBoxLayout;
    auto* field = named(new QLineEdit, group.field, group.field_purpose);
    auto* add = new_button(group.add);
    auto* remove = new_button(group.remove);
    entry->addWidget(field, 1);
    for (QPushButton* button : {add, remove}) {
        button->setFixedWidth(button->fontMetrics().horizontalAdvance(QStringLiteral("remove")) +
                              12);
        entry->addWidget(button);
    }
    rows->addLayout(entry);
    auto* list = named(new ListView(group.list, ListView::Selects::OneRow), group.list_name,
                       group.list_purpose);
    rows->addWidget(list);
    press_on_enter(*field, *add);
    press_on_delete(*list, *remove);
    return frame;
}

}  // namespace

HostColumn::HostColumn(EventDoor& door) : door_(door), pages_(new QStackedWidget) {
    pages_->addWidget(new_host_page());
    pages_->addWidget(new_search_page());
    pages_->addWidget(new_code_page());
    lay_out_pages(*this, named(new QTabBar, "TabStrip1", tr("Hosts, search and event codes")),
                  pages_);
    setFixedWidth(kColumnWidth);
}

void HostColumn::refresh() {
    pages_->setCurrentIndex(door_.console().Form1.host_tab - 1);
}

QWidget* HostColumn::new_host_page() {
    auto* hosts = new ListView(door_.console().Form1.ListView1, ListView::Selects::ManyRows);
    return only_widget(named(hosts, "ListView1", tr("Hosts")));
}

QWidget* HostColumn::new_search_page() {
    auto* page = new QWidget;
    auto* rows = new QVBoxLayout(page);
    rows->setContentsMargins(kSpacing, kSpacing, kSpacing, kSpacing);
    rows->setSpacing(kSpacing);
    rows->addWidget(new_search_group(), 1);
    rows->addWidget(new_analysis_group());
    return page;
}

QWidget* HostColumn::new_search_group() {
    auto* group = new QGroupBox(tr("Search Specific String"));
    auto* rows = new QVBoxLayout(group);
    auto* text = named(new QLineEdit, "TxtSearch", tr("Text to search for"));
    rows->addWidget(text);
    for (const char* name : {"Check1", "Check2", "Check3"})
        rows->addWidget(named(new QCheckBox, name));
    auto* buttons = new QHBoxLayout;
    auto* search = new_button("Command4");
    press_on_enter(*text, *search);
    buttons->addWidget(search);
    buttons->addWidget(new_button("Command5"));
    rows->addLayout(buttons);
    rows->addWidget(named(new QPlainTextEdit, "txtSearchHist", tr("Search history")), 1);
    return group;
}

QWidget* HostColumn::new_analysis_group() {
    auto* group = new QGroupBox(tr("Overall Analysis"));
    auto* rows = new QVBoxLayout(group);
    for (const char* name : {"Check4", "Check5", "Check6"})
        rows->addWidget(named(new QCheckBox, name));
    rows->addWidget(new_button("Command3"));
    rows->addWidget(new_button("Command7"));
    return group;
}

QWidget* HostColumn::new_code_page() {
    MainForm& form = door_.console().Form1;
    auto* page = new QWidget;
    auto* rows = new QVBoxLayout(page);
    rows->setContentsMargins(kSpacing, kSpacing, kSpacing, kSpacing);
    rows->setSpacing(kSpacing);
    rows->addWidget(
        new_code_group({form.AlertList, "AlertFrame", "AlertList", "TxtAlert", "Command1",
                        "Command6", tr("Event code to highlight"), tr("Highlighted codes")}));
    rows->addWidget(
        new_code_group({form.IgnoreList, "IgnoreFrame", "IgnoreList", "txtIgnore", "Command2",
                        "Command8", tr("Event code to ignore"), tr("Ignored codes")}));
    return page;
}

}  // namespace tessarine
