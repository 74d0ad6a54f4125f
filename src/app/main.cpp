// The console's entry point.
#include <QApplication>
#include <QMessageBox>
#include <csignal>

#include "adapters/system/freed_memory.h"
#include "app/console_program.h"
#include "core/code_page.h"
#include "core/runtime_error.h"

int main(int argc, char** argv) {
    // A write to a closed connection, or beyond what a file may hold, is an error and not the end.
    // Neither call can fail: the signals are the system's own.
    static_cast<void>(std::signal(SIGPIPE, SIG_IGN));
#ifdef SIGXFSZ
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN));
#endif
    tessarine::keep_freed_memory();
    QApplication application(argc, argv);
    tessarine::prepare_application(application);
    try {
        tessarine::ConsoleProgram program;
        program.start();
        return program.run();
    } catch (const tessarine::RuntimeError& error) {
        QMessageBox::critical(nullptr, QStringLiteral("Tessarine"),
                              QString::fromStdString(tessarine::to_utf8(error.description())));
        return 1;
    }
}
