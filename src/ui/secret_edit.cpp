#include "ui/secret_edit.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QToolTip>

#include "qt/qt_text.h"

namespace tessarine {
namespace {

constexpr QChar kDot(0x25CF);

bool is_text(const QString& text) {
    return !text.isEmpty() && text.at(0).isPrint();
}

}  // namespace

SecretEdit::SecretEdit() {
    setAcceptDrops(false);
    setDragEnabled(false);
    setInputMethodHints(Qt::ImhHiddenText | Qt::ImhSensitiveData | Qt::ImhNoPredictiveText |
                        Qt::ImhNoAutoUppercase);
}

void SecretEdit::show_length(int length) {
    if (text().size() == length) return;
    const int cursor = cursorPosition();
    setText(QString(length, kDot));
    setCursorPosition(cursor);
}

void SecretEdit::keyPressEvent(QKeyEvent* event) {
    event->accept();
    if (event->matches(QKeySequence::Paste)) {
        insert_text(QGuiApplication::clipboard()->text());
    } else if (event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Delete) {
        remove(event->key() == Qt::Key_Backspace ? -1 : 1);
    } else if (is_text(event->text()) &&
               !(event->modifiers() & (Qt::ControlModifier | Qt::MetaModifier))) {
        insert_text(event->text());
    } else {
        // Moves and marks; what would change the text, or copy the dots, is not among them.
        const bool changes =
            event->matches(QKeySequence::Copy) || event->matches(QKeySequence::Cut) ||
            event->matches(QKeySequence::Undo) || event->matches(QKeySequence::Redo) ||
            event->matches(QKeySequence::DeleteCompleteLine) ||
            event->matches(QKeySequence::DeleteEndOfLine);
        if (!changes) QLineEdit::keyPressEvent(event);
    }
}

void SecretEdit::inputMethodEvent(QInputMethodEvent* event) {
    if (is_text(event->commitString())) insert_text(event->commitString());
    event->accept();
}

// A field has one line: what comes after the first one of a text that is pasted is left out.
void SecretEdit::insert_text(const QString& text) {
    const int start = hasSelectedText() ? selectionStart() : cursorPosition();
    const QString line = text.left(text.indexOf(QLatin1Char('\n'))).remove(QLatin1Char('\r'));
    if (survives_code_page(line)) return replace(start, selectionLength(), line);
    QToolTip::showText(mapToGlobal(rect().bottomLeft()),
                       tr("A password has Western European characters alone"), this);
}

void SecretEdit::remove(int direction) {
    if (hasSelectedText()) return replace(selectionStart(), selectionLength(), {});
    const int start = direction < 0 ? cursorPosition() - 1 : cursorPosition();
    if (start >= 0 && start < text().size()) replace(start, 1, {});
}

void SecretEdit::replace(int start, int count, const QString& text) {
    emit changed(start, count, text);
    deselect();
    setCursorPosition(start + static_cast<int>(text.size()));
}

}  // namespace tessarine
