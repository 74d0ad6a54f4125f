#include "adapters/qt/qt_dialogs.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <utility>

#include "qt/qt_text.h"

namespace tessarine {
namespace {

QWidget* parent_of_dialogs() {
    QWidget* modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : QApplication::activeWindow();
}

QMessageBox::Icon icon_of(MessageStyle style) {
    switch (style) {
        case MessageStyle::Exclamation:
            return QMessageBox::Warning;
        case MessageStyle::Critical:
            return QMessageBox::Critical;
        case MessageStyle::YesNoQuestion:
            return QMessageBox::Question;
        default:
            return QMessageBox::Information;
    }
}

// As the chooser wants it: "Text File (*.txt)", with blanks between several patterns.
QString filter_text(const FileFilter& filter) {
    const QString caption = to_qt(filter.caption).section(QLatin1Char('('), 0, 0).trimmed();
    QString pattern = to_qt(filter.pattern).replace(QLatin1Char(';'), QLatin1Char(' '));
    // A name without a dot is a name too.
    if (pattern == QLatin1String("*.*")) pattern = QStringLiteral("*");
    return QStringLiteral("%1 (%2)").arg(caption, pattern);
}

QString existing_folder(const std::string& wanted, const std::string& last) {
    for (const std::string& folder : {wanted, last})
        if (!folder.empty() && QDir(to_qt(folder)).exists()) return to_qt(folder);
    return QDir::homePath();
}

}  // namespace

QtDialogs::QtDialogs(FileChooser chooser, std::string first_folder,
                     std::function<void()> before_showing)
    : chooser_(chooser),
      last_folder_(std::move(first_folder)),
      before_showing_(std::move(before_showing)) {}

MessageAnswer QtDialogs::message_box(const std::string& text, MessageStyle style,
                                     const std::string& title) {
    if (before_showing_) before_showing_();
    const bool question = style == MessageStyle::YesNoQuestion;
    QMessageBox box(icon_of(style), title.empty() ? QStringLiteral("Tessarine") : to_qt(title),
                    to_qt(text).replace(QLatin1String("\r\n"), QLatin1String("\n")),
                    question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok,
                    parent_of_dialogs());
    box.setTextFormat(Qt::PlainText);
    if (question) box.setDefaultButton(QMessageBox::No);
    const int answer = box.exec();
    if (!question) return MessageAnswer::Ok;
    return answer == QMessageBox::Yes ? MessageAnswer::Yes : MessageAnswer::No;
}

void QtDialogs::beep() {
    QApplication::beep();
}

std::string QtDialogs::choose_file(FilePurpose purpose, const std::string& start_folder,
                                   const std::vector<FileFilter>& filters,
                                   const std::string& title) {
    if (before_showing_) before_showing_();
    const QString caption = title.empty() ? QObject::tr("Choose a File") : to_qt(title);
    QFileDialog chooser(parent_of_dialogs(), caption, existing_folder(start_folder, last_folder_));
    const bool saves = purpose == FilePurpose::Save;
    chooser.setAcceptMode(saves ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    chooser.setFileMode(saves ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    chooser.setOption(QFileDialog::DontConfirmOverwrite);
    chooser.setLabelText(QFileDialog::Accept, QObject::tr("&OK"));
    QStringList names;
    for (const FileFilter& filter : filters) names += filter_text(filter);
    chooser.setNameFilters(names);
    return path_chosen_in(chooser);
}

std::string QtDialogs::choose_folder(const std::string& title) {
    if (before_showing_) before_showing_();
    QFileDialog chooser(parent_of_dialogs(), to_qt(title), existing_folder({}, last_folder_));
    chooser.setFileMode(QFileDialog::Directory);
    chooser.setOption(QFileDialog::ShowDirsOnly);
    return path_chosen_in(chooser);
}

std::string QtDialogs::ask_save_name(const std::string& proposed_name) {
    if (before_showing_) before_showing_();
    QFileDialog chooser(parent_of_dialogs(), QObject::tr("Save As"),
                        existing_folder({}, last_folder_));
    chooser.setAcceptMode(QFileDialog::AcceptSave);
    chooser.selectFile(to_qt(proposed_name));
    return path_chosen_in(chooser);
}

std::string QtDialogs::path_chosen_in(QFileDialog& chooser) {
    chooser.setOption(QFileDialog::DontUseNativeDialog, chooser_ == FileChooser::OfQt);
    if (chooser.exec() != QDialog::Accepted || chooser.selectedFiles().isEmpty()) return {};
    const QString path = chooser.selectedFiles().constFirst();
    if (survives_code_page(path)) {
        last_folder_ = from_qt(QFileInfo(path).path());
        return from_qt(path);
    }
    message_box("The path " + from_qt(path) +
                    " holds characters that Tessarine can't keep (shown as \"?\"). Choose a file "
                    "whose path has Western European characters alone.",
                MessageStyle::Critical);
    return {};
}

}  // namespace tessarine
