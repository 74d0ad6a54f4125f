#include "adapters/qt/qt_clipboard.h"

#include <QClipboard>
#include <QGuiApplication>

#include "adapters/qt/qt_text.h"

namespace tessarine {

void QtClipboard::clear() {
    QGuiApplication::clipboard()->clear();
}

void QtClipboard::set_text(const std::string& text) {
    QGuiApplication::clipboard()->setText(text_to_qt(text));
}

}  // namespace tessarine
