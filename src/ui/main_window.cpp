#include "ui/main_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QProgressBar>
#include <QScreen>
#include <QToolBar>

#include "core/console_state.h"
#include "core/run_event.h"
#include "qt/qt_text.h"
#include "ui/control_binder.h"
#include "ui/form_timer.h"
#include "ui/host_column.h"
#include "ui/main_menus.h"
#include "ui/record_column.h"
#include "ui/show_control.h"
#include "ui/status_bar_view.h"
#include "ui/widgets.h"
#include "ui/window_keys.h"

namespace tessarine {
namespace {

// 14070 by 9885 twips.
constexpr QSize kLeastSize(938, 659);
constexpr QSize kFirstSize(1366, 800);
// Pixels at 96 dpi.
constexpr int kHostFieldWidth = 240;
constexpr int kRightMargin = 13;
constexpr int kGap = 4;
// What a window manager may put around the window.
constexpr QSize kFrame(8, 40);

}  // namespace

MainWindow::MainWindow(EventDoor& door)
    : door_(door),
      menus_(new MainMenus(door, *this)),
      hosts_(new HostColumn(door)),
      records_(new RecordColumn(door)) {
    setObjectName("Form1");
    auto* centre = new QWidget;
    auto* columns = new QHBoxLayout(centre);
    columns->setContentsMargins(kGap, kGap, kGap, kGap);
    columns->setSpacing(kGap);
    columns->addWidget(hosts_);
    columns->addWidget(records_, 1);
    setCentralWidget(centre);
    add_host_field();
    add_status_bar();
    binder_ = new ControlBinder(door, MainForm::kId, *this);
    schedule_ =
        new FormTimer(door, MainForm::kId, "tmrAutoAudit", door.console().Form1.tmrAutoAudit, this);
    add_window_keys(*this, *hosts_, *records_);
    fit_into(screen()->availableSize() - kFrame);
    refresh();
}

// Where the screen is smaller than the least size, the screen wins.
void MainWindow::fit_into(const QSize& room) {
    setMinimumSize(kLeastSize.boundedTo(room));
    resize(kFirstSize.boundedTo(room));
}

// At the right end of the toolbar, where it stays when the window grows.
void MainWindow::add_host_field() {
    auto* bar = findChild<QToolBar*>("Toolbar1");
    auto* gap = new QWidget;
    gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    bar->addWidget(gap);
    auto* field = named(new QLineEdit, "txtSelectedHost", tr("Host whose logs are shown"));
    field->setFixedWidth(kHostFieldWidth);
    // Whoever enters it is sent on to the host list, so Tab would not get past it.
    field->setFocusPolicy(Qt::ClickFocus);
    bar->addWidget(field);
    auto* margin = new QWidget;
    margin->setFixedWidth(kRightMargin);
    bar->addWidget(margin);
}

void MainWindow::add_status_bar() {
    auto* status = new StatusBarView("st1", {10, 5, 10, 4, 6});
    auto* progress = named(new QProgressBar, "pbar1", tr("Progress"));
    progress->setRange(0, 1000);
    progress->setTextVisible(false);
    progress->setMaximumHeight(16);
    status->lay_over(2, progress);
    setStatusBar(status);
}

void MainWindow::refresh() {
    const MainForm& form = door_.console().Form1;
    if (!form.loaded) {
        hide();
        return;
    }
    setWindowTitle(to_qt(form.caption));
    show_pointer();
    hosts_->refresh();
    records_->refresh();
    menus_->refresh();
    schedule_->refresh(form.tmrAutoAudit);
    binder_->refresh();
}

void MainWindow::show_pointer() {
    const bool hourglass = door_.console().Form1.mouse_pointer == kPointerHourglass;
    hourglass ? setCursor(Qt::WaitCursor) : unsetCursor();
}

void MainWindow::refresh_progress() {
    const MainForm& form = door_.console().Form1;
    show_pointer();
    show_control(form.st1, *binder_->widget("st1"));
    show_control(form.pbar1, *binder_->widget("pbar1"));
}

// The close box ends the program as the menu entry does, and is heard also while a routine keeps
// all else back.
void MainWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    end_after_event(door_.console());
}

}  // namespace tessarine
