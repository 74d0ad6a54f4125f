#include "ui/about_dialog.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

#include "core/forms/about_form.h"
#include "ui/widgets.h"

namespace tessarine {
namespace {

constexpr int kPictureSize = 64;

QPlainTextEdit* new_text() {
    auto* text = named(new QPlainTextEdit, "Text1", QObject::tr("About this program"));
    text->setTabStopDistance(text->fontMetrics().horizontalAdvance(QStringLiteral("Version:   ")));
    text->setMinimumWidth(text->fontMetrics().averageCharWidth() * 44);
    text->setFixedHeight(text->fontMetrics().lineSpacing() * 6);
    text->setTabChangesFocus(true);
    return text;
}

}  // namespace

AboutDialog::AboutDialog(EventDoor& door, QWidget* parent)
    : FormDialog(door, AboutForm::kId, parent) {
    auto* picture = new QLabel;
    picture->setPixmap(QApplication::windowIcon().pixmap(kPictureSize));
    auto* close = named(new QPushButton(tr("&Close")), "close");
    close->setDefault(true);
    connect(close, &QPushButton::clicked, this, &AboutDialog::close_form);

    auto* rows = new QGridLayout(this);
    rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    rows->setSpacing(kMargin);
    rows->addWidget(picture, 0, 0, Qt::AlignTop);
    rows->addWidget(new_text(), 0, 1);
    rows->addWidget(close, 1, 1, Qt::AlignRight);
    layout()->setSizeConstraint(QLayout::SetFixedSize);
    bind();
    close->setFocus();
}

}  // namespace tessarine
