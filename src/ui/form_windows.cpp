#include "ui/form_windows.h"

#include <QApplication>
#include <algorithm>
#include <iterator>

#include "core/console_state.h"
#include "ui/about_dialog.h"
#include "ui/add_host_dialog.h"
#include "ui/connection_check_dialog.h"
#include "ui/custom_audit_dialog.h"
#include "ui/directory_dialog.h"
#include "ui/event_details_dialog.h"
#include "ui/form_access.h"
#include "ui/graph_dialog.h"
#include "ui/main_menus.h"
#include "ui/network_dialog.h"
#include "ui/settings_dialog.h"

namespace tessarine {
namespace {

template <class Dialog>
std::unique_ptr<FormDialog> make_dialog(EventDoor& door, QWidget* parent) {
    return std::make_unique<Dialog>(door, parent);
}

struct FormWindow {
    FormId form;
    std::unique_ptr<FormDialog> (*make)(EventDoor& door, QWidget* parent);
};

// The windows of the forms other than the main form.
constexpr FormWindow kFormWindows[] = {
    {EventDetailsForm::kId, make_dialog<EventDetailsDialog>},
    {SettingsForm::kId, make_dialog<SettingsDialog>},
    {CustomAuditForm::kId, make_dialog<CustomAuditDialog>},
    {GraphForm::kId, make_dialog<GraphDialog>},
    {AddHostForm::kId, make_dialog<AddHostDialog>},
    {NetworkForm::kId, make_dialog<NetworkDialog>},
    {ConnectionCheckForm::kId, make_dialog<ConnectionCheckDialog>},
    {DirectoryForm::kId, make_dialog<DirectoryDialog>},
    {AboutForm::kId, make_dialog<AboutDialog>},
};

}  // namespace

QtFormWindows::QtFormWindows() = default;

QtFormWindows::~QtFormWindows() {
    close();
}

void QtFormWindows::open(Console& console, std::span<const ControlEvent> events) {
    door_ = std::make_unique<EventDoor>(console, events);
    main_window_ = std::make_unique<MainWindow>(*door_);
    repainter_ = std::make_unique<Repainter>(*door_, gate_, [this] { show_progress(); });
    console.Form1.st1.set_repaint_hook(repainter_.get());
    console.Form1.pbar1.set_repaint_hook(repainter_.get());
}

void QtFormWindows::close() {
    if (door_ == nullptr) return;
    door_->console().Form1.st1.set_repaint_hook(nullptr);
    door_->console().Form1.pbar1.set_repaint_hook(nullptr);
    door_->console().mouse_pointer = kPointerDefault;
    show_pointer();
    // Widgets that go away pass the focus on, which is no event any more.
    door_->hold(true);
    repainter_.reset();
    main_window_.reset();
    door_.reset();
}

void QtFormWindows::show_main_window() {
    if (!door_->console().Form1.loaded) return;
    main_window_->show();
    door_->raise(MainForm::kId, MainForm::kId.name, EventKind::Activate);
}

void QtFormWindows::refresh() {
    if (door_ == nullptr) return;
    main_window_->refresh();
    for (FormDialog* dialog : dialogs_) dialog->refresh();
    show_pointer();
}

void QtFormWindows::show_pointer() {
    const bool wanted = door_->console().mouse_pointer == kPointerHourglass;
    if (wanted == hourglass_) return;
    hourglass_ = wanted;
    wanted ? QApplication::setOverrideCursor(Qt::WaitCursor)
           : QApplication::restoreOverrideCursor();
}

void QtFormWindows::show_progress() {
    main_window_->refresh_progress();
    for (FormDialog* dialog : dialogs_) dialog->refresh();
    show_pointer();
}

void QtFormWindows::tick() {
    if (door_ == nullptr) return;
    gate_.shut_for_event(door_->console().events_running);
    repainter_->tick();
}

void QtFormWindows::let_events_pass() {
    if (door_ == nullptr || door_->held()) return;
    refresh();
    QCoreApplication::processEvents();
}

void QtFormWindows::event_ended() {
    if (door_ == nullptr) return;
    const int events_running = door_->console().events_running;
    gate_.event_ended(events_running);
    for (FormDialog* dialog : dialogs_) dialog->event_ended(events_running);
    refresh();
}

void QtFormWindows::pop_up_menu(std::string_view menu) {
    if (door_ == nullptr) return;
    refresh();
    main_window_->menus().pop_up(menu);
}

std::unique_ptr<FormDialog> QtFormWindows::new_dialog(FormId form) {
    QWidget* parent =
        dialogs_.empty() ? static_cast<QWidget*>(main_window_.get()) : dialogs_.back();
    // A hidden parent would hide the dialog with it.
    if (!parent->isVisible()) parent = main_window_.get();
    const auto* const window = std::ranges::find(kFormWindows, form, &FormWindow::form);
    return window == std::end(kFormWindows) ? nullptr : window->make(*door_, parent);
}

bool QtFormWindows::shown(FormId form) {
    const FormBase* state = loaded_form(door_->console(), form);
    return state != nullptr && state->visible && door_->console().Form1.loaded;
}

void QtFormWindows::wait_while_shown(FormId form) {
    while (shown(form)) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void QtFormWindows::show_modal(FormId form) {
    FormBase* state = door_ == nullptr ? nullptr : loaded_form(door_->console(), form);
    if (state == nullptr || !door_->console().Form1.loaded) return;
    const std::unique_ptr<FormDialog> dialog = new_dialog(form);
    if (dialog == nullptr) return;
    // From the first host's check on, until the audit has ended.
    if (form == ConnectionCheckForm::kId) gate_.shut_for_event(door_->console().events_running);
    state->visible = true;
    dialogs_.push_back(dialog.get());
    refresh();
    door_->raise(form, form.name, EventKind::Activate);
    wait_while_shown(form);
    dialogs_.pop_back();
    refresh();
    door_->raise(MainForm::kId, MainForm::kId.name, EventKind::Activate);
}

}  // namespace tessarine
