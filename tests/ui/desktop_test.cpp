// The adapters to the desktop: choosers, messages, the shell, the program's folder.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <array>
#include <functional>

#include "adapters/qt/qt_clipboard.h"
#include "adapters/qt/qt_dialogs.h"
#include "adapters/qt/qt_program.h"
#include "adapters/qt/qt_shell.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

// Acts in each modal window that comes up, until none has for the time of the test.
template <class Dialog>
void in_next(const std::function<void(Dialog&)>& act) {
    auto* poll = new QTimer;
    QObject::connect(poll, &QTimer::timeout, poll, [poll, act] {
        auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
        if (dialog == nullptr) return;
        poll->deleteLater();
        poll->stop();
        QTimer::singleShot(0, dialog, [dialog, act] { act(*dialog); });
    });
    poll->start(10);
}

void type_into(QFileDialog& chooser, const QString& name) {
    auto* field = chooser.findChild<QLineEdit*>("fileNameEdit");
    field->setText(name);
    QTest::keyClick(field, Qt::Key_Return);
}

void type_name(const QString& name) {
    in_next<QFileDialog>([name](QFileDialog& chooser) { type_into(chooser, name); });
}

std::string choose(QtDialogs& dialogs, const QTemporaryDir& folder) {
    return dialogs.choose_file(FilePurpose::Save, folder.path().toStdString(),
                               {{"Text File (*.txt)", "*.txt"}, {"All Files (*.*)", "*.*"}}, "");
}

// A chooser of the desktop takes a new name only where it saves.
TEST(QtDialogs, ANewNameCanBeGivenWhereAFileIsSaved) {
    const QTemporaryDir folder;
    QtDialogs dialogs(FileChooser::OfQt, {});
    type_name("new list");
    EXPECT_EQ(choose(dialogs, folder), folder.filePath("new list").toStdString());
    in_next<QFileDialog>([](QFileDialog& chooser) {
        EXPECT_EQ(chooser.nameFilters(), QStringList({"Text File (*.txt)", "All Files (*)"}));
        EXPECT_EQ(chooser.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_TRUE(chooser.testOption(QFileDialog::DontConfirmOverwrite));
        chooser.reject();
    });
    EXPECT_EQ(choose(dialogs, folder), "");
}

TEST(QtDialogs, TheChooserOpensInTheFirstFolderAndThenWhereTheLastFileWas) {
    const QTemporaryDir first, second;
    QFile(second.filePath("list.txt")).open(QIODevice::WriteOnly);
    QtDialogs dialogs(FileChooser::OfQt, first.path().toStdString());
    const QString list = second.filePath("list.txt");
    for (const QTemporaryDir* folder : {&first, &second}) {
        in_next<QFileDialog>([&](QFileDialog& chooser) {
            EXPECT_EQ(chooser.directory().path(), folder->path());
            type_into(chooser, list);
        });
        EXPECT_EQ(dialogs.choose_file(FilePurpose::Open, "c:\\", {}, ""), list.toStdString());
    }
}

TEST(QtDialogs, APathThatTheCodePageLacksIsRefusedInWords) {
    const QTemporaryDir folder;
    QtDialogs dialogs(FileChooser::OfQt, {});
    type_name(QString::fromUtf8("h\u00F6sts"));
    EXPECT_EQ(choose(dialogs, folder), folder.filePath("h").toStdString() + "\xF6sts");
    type_name(QString::fromUtf8("\u4E3B\u6A5F"));
    in_next<QMessageBox>([](QMessageBox& box) {
        EXPECT_TRUE(box.text().contains("characters"));
        box.accept();
    });
    EXPECT_EQ(choose(dialogs, folder), "");
}

TEST(QtDialogs, ANameToSaveUnderIsProposed) {
    QtDialogs dialogs(FileChooser::OfQt, {});
    const QString proposed = QDir::home().filePath("test.xls");
    in_next<QFileDialog>([&](QFileDialog& chooser) {
        EXPECT_EQ(chooser.selectedFiles(), QStringList(proposed));
        chooser.reject();
    });
    EXPECT_EQ(dialogs.ask_save_name("test.xls"), "");
}

TEST(QtDialogs, AQuestionIsAnsweredByItsButtonsAndEnterMeansNo) {
    int shown_before = 0;
    QtDialogs dialogs(FileChooser::OfQt, {}, [&] { ++shown_before; });
    in_next<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.text(), "one\ntwo");
        box.button(QMessageBox::Yes)->click();
    });
    EXPECT_EQ(dialogs.message_box("one\r\ntwo", MessageStyle::YesNoQuestion), MessageAnswer::Yes);
    in_next<QMessageBox>([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Return); });
    EXPECT_EQ(dialogs.message_box("sure?", MessageStyle::YesNoQuestion), MessageAnswer::No);
    EXPECT_EQ(shown_before, 2);
}

// Takes the addresses that the desktop would open. A handler must be a method of an object that Qt
// knows by name; the signal of a file dialog, which is never shown, is one that passes them on.
class OpenedAddresses {
  public:
    OpenedAddresses() {
        QObject::connect(&relay_, &QFileDialog::urlSelected, &relay_, [this](const QUrl& address) {
            seen += address.toString(QUrl::FullyEncoded);
        });
        for (const char* scheme : kSchemes)
            QDesktopServices::setUrlHandler(scheme, &relay_, "urlSelected");
    }
    ~OpenedAddresses() {
        for (const char* scheme : kSchemes) QDesktopServices::unsetUrlHandler(scheme);
    }
    OpenedAddresses(const OpenedAddresses&) = delete;
    OpenedAddresses& operator=(const OpenedAddresses&) = delete;

    QStringList seen;

  private:
    static constexpr std::array kSchemes = {"http", "https", "file"};
    QFileDialog relay_;
};

// Sets an environment variable for the length of a test.
class Variable {
  public:
    Variable(const char* name, const QByteArray& value) : name_(name), before_(qgetenv(name)) {
        qputenv(name, value);
    }
    ~Variable() { qputenv(name_, before_); }
    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

  private:
    const char* name_;
    QByteArray before_;
};

TEST(QtShell, OpensAddressesAndFilesAndTheManualForAHelpFileThatIsMissing) {
    const OpenedAddresses opened;
    const QTemporaryDir folder;
    QFile(folder.filePath("Tessarine.chm")).open(QIODevice::WriteOnly);
    QtShell shell;
    shell.open("http://example.net/cgi-bin/x.pl?EvtSrc=Service Control Manager&EvtID=1");
    shell.open(folder.path().toStdString() + "\\Tessarine.chm");
    shell.open("/nowhere/Tessarine.chm");
    ASSERT_GE(opened.seen.size(), 2);
    EXPECT_EQ(opened.seen[0],
              "http://example.net/cgi-bin/x.pl?EvtSrc=Service%20Control%20Manager&EvtID=1");
    EXPECT_TRUE(opened.seen[1].endsWith("/Tessarine.chm"));
    // The manual is where the program lies, which a test's may not.
    EXPECT_TRUE(opened.seen.size() == 2 || opened.seen[2].endsWith("/manual/index.html"));
}

// The desktop's choice stands in mimeapps.list (freedesktop.org, Default Applications).
TEST(QtShell, KnowsWhetherTheDesktopHasAProgram) {
    const QTemporaryDir home;
    const QByteArray folder = QFile::encodeName(home.path());
    const Variable config("XDG_CONFIG_HOME", folder), of_all("XDG_CONFIG_DIRS", folder),
        data("XDG_DATA_HOME", folder), data_of_all("XDG_DATA_DIRS", folder),
        desktop("XDG_CURRENT_DESKTOP", "X-Generic");
    // The kinds of files are the system's.
    ASSERT_TRUE(QFile::link("/usr/share/mime", home.filePath("mime")));
    QtShell shell;
    EXPECT_FALSE(shell.has_program_for("/tmp/book.xlsx"));
    QFile choices(home.filePath("mimeapps.list"));
    ASSERT_TRUE(choices.open(QIODevice::WriteOnly));
    choices.write(
        "[Default Applications]\n"
        "application/vnd.openxmlformats-officedocument.spreadsheetml.sheet=calc.desktop\n");
    choices.close();
    ASSERT_TRUE(QDir(home.path()).mkdir("applications"));
    QFile program(home.filePath("applications/calc.desktop"));
    ASSERT_TRUE(program.open(QIODevice::WriteOnly));
    program.write("[Desktop Entry]\nType=Application\nName=Calc\nExec=true %f\n");
    program.close();
    EXPECT_TRUE(shell.has_program_for("/tmp/book.xlsx"));
    EXPECT_FALSE(shell.has_program_for("/tmp/book.chm"));
    const Variable path("PATH", folder);
    EXPECT_FALSE(shell.has_program_for("/tmp/book.xlsx"));
}

TEST(QtClipboard, HandsOutItsPictureAsABitmapFile) {
    QtClipboard clipboard;
    QImage picture(3, 2, QImage::Format_ARGB32);
    picture.fill(Qt::red);
    QGuiApplication::clipboard()->setImage(picture);
    const std::string bytes = clipboard.picture();
    EXPECT_EQ(bytes.substr(0, 2), "BM");
    EXPECT_EQ(bytes[28], 24);  // bits a point
    EXPECT_EQ(QImage::fromData(QByteArray::fromStdString(bytes)).pixelColor(2, 1), Qt::red);
    clipboard.set_text("a text");
    EXPECT_THROW(clipboard.picture(), RuntimeError);
}

TEST(QtProgram, MakesItsFolderForItsOwnerAlone) {
    const QTemporaryDir home;
    const Variable data_home("XDG_DATA_HOME", QFile::encodeName(home.filePath("deep/data")));
    const mode_t mask_before = ::umask(0);
    QtProgram program;
    ::umask(mask_before);
    EXPECT_EQ(program.application_directory(), home.filePath("deep/data/tessarine").toStdString());
    struct stat status {};
    ASSERT_EQ(::stat(program.application_directory().c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);
}

TEST(QtProgram, SaysWhyThereIsNoFolder) {
    const QTemporaryDir home;
    QFile(home.filePath("file")).open(QIODevice::WriteOnly);
    for (const char* place : {"file/x", "\xE4\xB8\xBB"}) {
        const Variable data_home("XDG_DATA_HOME", QFile::encodeName(home.path()) + "/" + place);
        EXPECT_THROW(QtProgram(), RuntimeError) << place;
    }
}

}  // namespace
}  // namespace tessarine
