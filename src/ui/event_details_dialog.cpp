#include "ui/event_details_dialog.h"

#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/forms/event_details_form.h"
#include "ui/status_bar_view.h"
#include "ui/theme_icons.h"
#include "ui/widgets.h"

namespace tessarine {
namespace {

constexpr QSize kFirstSize(640, 480);
constexpr QSize kPictureSize(32, 32);

// One field in its cell of the grid, with what stands beside it.
struct DetailField {
    const char* label;
    QString caption;
    int row;
    int column;
};

QLabel* new_value(const char* name) {
    auto* value = named(new QLabel, name);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    // A name as long as a file can give must not widen the window.
    value->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return value;
}

QLayout* new_fields() {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(2 * kSpacing);
    grid->setVerticalSpacing(kSpacing / 2);
    for (const DetailField& field : {DetailField{"lblType", QObject::tr("Type"), 0, 0},
                                     DetailField{"lbldate", QObject::tr("Date"), 1, 0},
                                     DetailField{"lblTime", QObject::tr("Time"), 2, 0},
                                     DetailField{"lblEventID", QObject::tr("Event ID"), 3, 0},
                                     DetailField{"lblSource", QObject::tr("Source"), 0, 2},
                                     DetailField{"lblUser", QObject::tr("User"), 1, 2},
                                     DetailField{"lblComputer", QObject::tr("Computer"), 2, 2}}) {
        auto* caption = new QLabel(field.caption);
        caption->setForegroundRole(QPalette::PlaceholderText);
        grid->addWidget(caption, field.row, field.column);
        grid->addWidget(new_value(field.label), field.row, field.column + 1);
    }
    grid->setColumnStretch(1, 2);
    grid->setColumnStretch(3, 3);
    return grid;
}

QPlainTextEdit* new_message() {
    auto* message = named(new QPlainTextEdit, "txtDesc", QObject::tr("Description"));
    message->setTabChangesFocus(true);
    return message;
}

QPushButton* new_button(const char* name, std::string_view icon, const QKeySequence& keys) {
    auto* button = named(new QPushButton(menu_icon(icon), QString()), name);
    button->setAutoDefault(false);
    button->setIconSize({22, 22});
    button->setShortcut(keys);
    return button;
}

QLayout* new_buttons() {
    auto* column = new QVBoxLayout;
    column->setSpacing(kSpacing / 2);
    column->addWidget(new_button("CmdUp", "CmdUp", QKeySequence("Alt+Up")));
    column->addWidget(new_button("CmdDown", "CmdDown", QKeySequence("Alt+Down")));
    column->addWidget(new_button("cmdClipboard", "cmdClipboard", QKeySequence("Ctrl+Shift+C")));
    column->addWidget(new_button("Command2", "LOOKUP", QKeySequence("Ctrl+L")));
    column->addStretch();
    return column;
}

}  // namespace

EventDetailsDialog::EventDetailsDialog(EventDoor& door, QWidget* parent)
    : FormDialog(door, EventDetailsForm::kId, parent) {
    auto* picture = named(new QLabel, "Image1");
    picture->setFixedSize(kPictureSize);
    auto* close = named(new QPushButton, "Command1");
    close->setDefault(true);
    auto* bottom = new QHBoxLayout;
    auto* status = new StatusBarView("st1", {1});
    status->setSizeGripEnabled(false);
    bottom->addWidget(status, 1);
    bottom->addWidget(close);

    auto* rows = new QGridLayout(this);
    rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    rows->setSpacing(kSpacing);
    rows->addWidget(picture, 0, 0, Qt::AlignTop);
    rows->addLayout(new_fields(), 0, 1);
    rows->addLayout(new_buttons(), 0, 2, 3, 1);
    rows->addWidget(new QLabel(tr("Description:")), 1, 0, 1, 2);
    rows->addWidget(new_message(), 2, 0, 1, 2);
    rows->addLayout(bottom, 3, 0, 1, 3);
    rows->setRowStretch(2, 1);
    rows->setColumnStretch(1, 1);
    bind();
    resize(kFirstSize);
    close->setFocus();
}

}  // namespace tessarine
