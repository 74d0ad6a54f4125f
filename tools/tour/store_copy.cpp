#include "tour/store_copy.h"

#include <QDir>
#include <QFile>
#include <cstdio>

#include "core/code_page.h"
#include "tour/failure.h"

namespace tessarine::tour {
namespace {

qint64 lines_of(const QString& path) {
    QFile file(path);
    check(file.open(QIODevice::ReadOnly), path + " can't be read");
    qint64 lines = 0;
    while (!file.atEnd()) lines += file.read(1 << 20).count('\n');
    return lines;
}

void copy_folder(const QDir& from, const QDir& to) {
    check(to.mkpath(QStringLiteral(".")), to.path() + " can't be made");
    for (const QFileInfo& file : from.entryInfoList(QDir::Files, QDir::Name)) {
        const QString copy = to.filePath(file.fileName());
        check(QFile::copy(file.filePath(), copy), copy + " can't be written");
        std::printf("  %12lld bytes %9lld lines  %s/%s\n", static_cast<long long>(file.size()),
                    static_cast<long long>(lines_of(copy)), qPrintable(to.dirName()),
                    qPrintable(file.fileName()));
    }
}

}  // namespace

void copy_store(const std::string& log_path, const QString& folder) {
    const QString store = QString::fromStdString(to_utf8(log_path)).replace('\\', '/');
    check(QDir(store + "/Data").exists(), "the store " + store + " has no folder Data");
    QDir(folder).removeRecursively();
    std::printf("The event store:\n");
    for (const char* part : {"Data", "Logs"})
        copy_folder(QDir(store + "/" + part), QDir(folder + "/" + part));
    std::printf("copied to %s\n", qPrintable(folder));
}

}  // namespace tessarine::tour
