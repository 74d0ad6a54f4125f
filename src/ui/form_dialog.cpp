#include "ui/form_dialog.h"

#include <QCloseEvent>
#include <QVBoxLayout>

#include "core/console_state.h"
#include "core/run_event.h"
#include "qt/qt_text.h"
#include "ui/form_access.h"
#include "ui/status_bar_view.h"
#include "ui/widgets.h"

namespace tessarine {

FormDialog::FormDialog(EventDoor& door, FormId form, QWidget* parent)
    : QDialog(parent), door_(door), form_(form) {
    setObjectName(object_name(form.name));
    setWindowModality(Qt::ApplicationModal);
}

void FormDialog::lay_out_over_status_bar(QWidget* content, const char* bar) {
    auto* status = new StatusBarView(bar, {1});
    status->setSizeGripEnabled(false);
    auto* inner = new QVBoxLayout;
    inner->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    inner->addWidget(content);
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addLayout(inner, 1);
    rows->addWidget(status);
}

void FormDialog::bind() {
    binder_ = new ControlBinder(door_, form_, *this);
}

void FormDialog::refresh() {
    const FormBase* form = loaded_form(door_.console(), form_);
    if (form != nullptr && form->visible) {
        setWindowTitle(form->caption.empty() ? tr("Tessarine") : to_qt(form->caption));
        binder_->refresh();
    }
    const bool shown = form != nullptr && form->visible;
    if (isVisible() != shown) setVisible(shown);
}

void FormDialog::close_form() {
    if (door_.held()) {
        close_wanted_in_ = door_.console().events_running;
        return;
    }
    if (door_.leads_on(form_, form_.name, EventKind::CloseBox)) {
        door_.raise(form_, form_.name, EventKind::CloseBox);
    } else {
        run_event(door_.console(), [this](Console& console) { unload_form(console, form_); });
    }
}

void FormDialog::event_ended(int events_running) {
    if (events_running >= close_wanted_in_) return;
    close_wanted_in_ = 0;
    close_form();
}

// The form decides whether its window closes.
void FormDialog::closeEvent(QCloseEvent* event) {
    event->ignore();
    close_form();
}

}  // namespace tessarine
