// A tour of the console: drives the real window and takes pictures of it.
#include <QApplication>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QStyle>
#include <QStyleFactory>

#include "core/code_page.h"
#include "core/console_state.h"
#include "core/runtime_error.h"
#include "platform/program.h"
#include "tour/failure.h"
#include "tour/tour.h"

namespace tessarine::tour {
namespace {

QPalette dark_palette() {
    const QColor ground(0x2B, 0x2E, 0x33), base(0x1F, 0x21, 0x25), text(0xE6, 0xE6, 0xE6);
    QPalette palette(ground);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, text);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::AlternateBase, ground);
    palette.setColor(QPalette::ToolTipBase, ground);
    palette.setColor(QPalette::Highlight, QColor(0x2F, 0x6F, 0xB5));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    for (const QPalette::ColorRole role :
         {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(0x80, 0x84, 0x8A));
    return palette;
}

struct Options {
    QString out;
    QString hosts;
    bool dark = false;
};

Options options_of(const QApplication& application) {
    QCommandLineParser parser;
    parser.setApplicationDescription("Walks through the console and takes pictures of it.");
    parser.addHelpOption();
    parser.addOptions({{"out", "Where the pictures and a copy of the store go.", "folder"},
                       {"hosts",
                        "The host list to load (default: hosts.txt in the application "
                        "directory).",
                        "file"},
                       {"dark", "Take dark colours."}});
    parser.process(application);
    check(parser.isSet("out") && parser.positionalArguments().isEmpty(),
          "usage: tessarine-tour --out FOLDER [--hosts FILE] [--dark]");
    return {parser.value("out"), parser.value("hosts"), parser.isSet("dark")};
}

QString default_hosts(ConsoleProgram& program) {
    const std::string folder = program.console().platform.program.application_directory();
    return QString::fromStdString(to_utf8(folder)) + "/hosts.txt";
}

int run(QApplication& application) {
    const Options options = options_of(application);
    prepare_application(application);
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    if (options.dark) QApplication::setPalette(dark_palette());
    ConsoleProgram program(FileChooser::OfQt);
    const QString hosts = options.hosts.isEmpty() ? default_hosts(program) : options.hosts;
    Tour(program, options.out, QFileInfo(hosts).absoluteFilePath()).walk();
    return 0;
}

}  // namespace
}  // namespace tessarine::tour

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    try {
        return tessarine::tour::run(application);
    } catch (const tessarine::RuntimeError& error) {
        tessarine::tour::fail(QString::fromStdString(tessarine::to_utf8(error.description())));
    }
}
