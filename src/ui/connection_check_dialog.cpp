#include "ui/connection_check_dialog.h"

#include <QGridLayout>
#include <QLabel>

#include "core/forms/connection_check_form.h"
#include "ui/form_access.h"
#include "ui/form_timer.h"
#include "ui/pictures.h"
#include "ui/widgets.h"

namespace tessarine {
namespace {

constexpr int kPictureSize = 32;

}  // namespace

ConnectionCheckDialog::ConnectionCheckDialog(EventDoor& door, QWidget* parent)
    : FormDialog(door, ConnectionCheckForm::kId, parent) {
    // The gate keeps the user from the other windows.
    setWindowModality(Qt::NonModal);
    // No close box: the wait always takes its time.
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    auto* picture = new QLabel;
    picture->setPixmap(list_picture(kIconHost).value<QIcon>().pixmap(kPictureSize));
    auto* rows = new QGridLayout(this);
    rows->setContentsMargins(2 * kMargin, 2 * kMargin, 2 * kMargin, 2 * kMargin);
    rows->setHorizontalSpacing(kMargin);
    rows->addWidget(picture, 0, 0, 2, 1);
    rows->addWidget(named(new QLabel, "Label1"), 0, 1);
    rows->addWidget(named(new QLabel, "lblHostName"), 0, 2);
    rows->addWidget(named(new QLabel, "Label2"), 1, 1);
    rows->addWidget(named(new QLabel, "lblReturn"), 1, 2);
    rows->setColumnStretch(2, 1);
    setFixedWidth(380);
    bind();
    new FormTimer(door, form(), "Timer1", door.console().ConCheck->Timer1, this);
}

}  // namespace tessarine
