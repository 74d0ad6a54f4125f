#include "adapters/qt/qt_clipboard.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

#include "core/runtime_error.h"
#include "qt/qt_text.h"

namespace tessarine {

void QtClipboard::clear() {
    QGuiApplication::clipboard()->clear();
}

void QtClipboard::set_text(const std::string& text) {
    QGuiApplication::clipboard()->setText(to_qt(text));
}

std::string QtClipboard::picture() {
    const QImage image = QGuiApplication::clipboard()->image();
    if (image.isNull())
        throw RuntimeError(ErrorNumber::Failed, "There is no picture on the clipboard");
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.convertToFormat(QImage::Format_RGB888).save(&buffer, "BMP");
    return bytes.toStdString();
}

}  // namespace tessarine
