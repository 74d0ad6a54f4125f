#include "adapters/qt/qt_shell.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QProcess>
#include <QSysInfo>
#include <QUrl>

#include "qt/qt_text.h"

namespace tessarine {
namespace {

constexpr int kLongestAnswer = 5'000;  // milliseconds

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
    QString wanted = to_qt(target);
    if (is_address(wanted)) {
        QDesktopServices::openUrl(QUrl(wanted, QUrl::TolerantMode));
        return;
    }
    wanted.replace(QLatin1Char('\\'), QLatin1Char('/'));
    if (!QFileInfo::exists(wanted) && wanted.endsWith(QLatin1String(".chm")))
        wanted = manual_page();
    if (!wanted.isEmpty()) QDesktopServices::openUrl(QUrl::fromLocalFile(wanted));
}

bool QtShell::has_program_for(const std::string& path) {
    // Only the desktops of freedesktop.org can be asked this way. Others offer a choice of programs
    // when they open a file that they don't know.
    if (QSysInfo::kernelType() != QLatin1String("linux")) return true;
    const QMimeType type =
        QMimeDatabase().mimeTypeForFile(to_qt(path), QMimeDatabase::MatchExtension);
    QProcess question;
    question.start(QStringLiteral("xdg-mime"),
                   {QStringLiteral("query"), QStringLiteral("default"), type.name()},
                   QIODevice::ReadOnly);
    // Without an answer in time, or without that program, there is nothing that would open it.
    return question.waitForFinished(kLongestAnswer) &&
           !question.readAllStandardOutput().trimmed().isEmpty();
}

}  // namespace tessarine
