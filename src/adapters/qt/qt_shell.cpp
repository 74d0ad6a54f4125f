#include "adapters/qt/qt_shell.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>

#include "adapters/qt/qt_text.h"

namespace tessarine {
namespace {

bool is_address(const QString& target) {
    return target.startsWith(QLatin1String("http://")) ||
           target.startsWith(QLatin1String("https://"));
}

// The manual's first page as installed, or as it lies in the sources of a program that was built
// there.
QString manual_page() {
    const QString programs = QCoreApplication::applicationDirPath();
    for (const char* place : {"/../share/tessarine/manual", "/../../../docs/manual"}) {
        const QFileInfo page(programs + QLatin1String(place) + QLatin1String("/index.html"));
        if (page.exists()) return page.canonicalFilePath();
    }
    return {};
}

}  // namespace

void QtShell::open(const std::string& target) {
    QString wanted = text_to_qt(target);
    if (is_address(wanted)) {
        QDesktopServices::openUrl(QUrl(wanted, QUrl::TolerantMode));
        return;
    }
    wanted.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (!QFileInfo::exists(wanted) && wanted.endsWith(QLatin1String(".chm")))
        wanted = manual_page();
    if (!wanted.isEmpty()) QDesktopServices::openUrl(QUrl::fromLocalFile(wanted));
}

}  // namespace tessarine
