// What the dialogs of the console's forms have in common.
#pragma once

#include <QDialog>

#include "ui/control_binder.h"

namespace tessarine {

/// The window of one modal form. It is made when the form is shown and ends when the form is
/// hidden or unloaded; its close box and Esc raise the form's CloseBox event, or unload the form
/// when there is none.
class FormDialog : public QDialog {
    Q_OBJECT

  public:
    FormDialog(EventDoor& door, FormId form, QWidget* parent);
    /// Cuts the ties to the controls first: widgets that go away still lose the focus and tell so.
    ~FormDialog() override { delete binder_; }

    /// Joins the widgets, which must all be there, to the form's controls.
    void bind();
    /// Shows what the form holds now, and hides when the form is hidden or unloaded.
    virtual void refresh();

    /// Closes when its close box was pressed in the midst of an event that has ended now;
    /// `events_running` are left.
    void event_ended(int events_running);

    FormId form() const { return form_; }

  protected:
    EventDoor& door() const { return door_; }
    /// Fills the window with `content` and, below it, the form's status bar of that name.
    void lay_out_over_status_bar(QWidget* content, const char* bar);
    virtual void close_form();
    void reject() override { close_form(); }
    void closeEvent(QCloseEvent* event) override;

  private:
    EventDoor& door_;
    FormId form_;
    int close_wanted_in_ = 0;
    ControlBinder* binder_ = nullptr;
};

}  // namespace tessarine
