#include "adapters/qt/qt_program.h"

#include <sys/stat.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include "core/runtime_error.h"
#include "qt/qt_text.h"

namespace tessarine {
namespace {

// A relative path there counts as none (XDG Base Directory Specification).
QString data_home() {
    const QString given = qEnvironmentVariable("XDG_DATA_HOME");
    return QDir::isAbsolutePath(given) ? QDir::cleanPath(given)
                                       : QDir::homePath() + QStringLiteral("/.local/share");
}

// Makes `path` and the folders that it lacks, readable by their owner alone.
bool make_folders(const QString& path) {
    if (QDir(path).exists()) return true;
    if (!make_folders(QFileInfo(path).path())) return false;
    return ::mkdir(QFile::encodeName(path).constData(), S_IRWXU) == 0 || QDir(path).exists();
}

}  // namespace

QtProgram::QtProgram() {
    const QString folder = data_home() + QStringLiteral("/tessarine");
    folder_ = from_qt(folder);
    if (!survives_code_page(folder))
        throw RuntimeError(ErrorNumber::BadFileName,
                           "The data folder " + folder_ +
                               " holds characters that Tessarine can't keep (shown as \"?\"); set "
                               "XDG_DATA_HOME to another folder");
    if (!make_folders(folder))
        throw RuntimeError(ErrorNumber::PathNotFound,
                           "The data folder " + folder_ + " can't be made");
}

// The loop ends only when control is back in it, so the running event comes to its end.
void QtProgram::end() {
    ended_ = true;
    QCoreApplication::exit(0);
}

}  // namespace tessarine
