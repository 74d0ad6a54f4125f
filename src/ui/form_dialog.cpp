#include "ui/form_dialog.h"

#include <QCloseEvent>

#include "core/run_event.h"
#include "qt/qt_text.h"
#include "ui/form_access.h"

namespace tessarine {

FormDialog::FormDialog(EventDoor& door, FormId form, QWidget* parent)
    : QDialog(parent), door_(door), form_(form) {
    setObjectName(object_name(form.name));
    setWindowModality(Qt::ApplicationModal);
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
    if (door_.held()) return;
    if (door_.leads_on(form_, form_.name, EventKind::CloseBox)) {
        door_.raise(form_, form_.name, EventKind::CloseBox);
    } else {
        run_event(door_.console(), [this](Console& console) { unload_form(console, form_); });
    }
}

// The form decides whether its window closes.
void FormDialog::closeEvent(QCloseEvent* event) {
    event->ignore();
    close_form();
}

}  // namespace tessarine
