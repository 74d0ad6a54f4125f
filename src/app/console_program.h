// The whole console: its platform, its state and its windows.
#pragma once

#include <memory>

#include "adapters/qt/qt_dialogs.h"

class QApplication;

namespace tessarine {

struct Console;
class QtFormWindows;

/// What the application needs before there is a window: its name, its pictures.
void prepare_application(QApplication& application);

/// To be made while a QApplication is there.
class ConsoleProgram {
  public:
    /// Raises a RuntimeError when there is no folder for the console's files.
    explicit ConsoleProgram(FileChooser chooser = FileChooser::OfTheDesktop);
    ~ConsoleProgram();
    ConsoleProgram(const ConsoleProgram&) = delete;
    ConsoleProgram& operator=(const ConsoleProgram&) = delete;

    Console& console();
    QtFormWindows& windows();

    /// Loads the main form and shows its window.
    void start();
    /// Runs the event loop until the console ends; returns the program's exit status.
    int run();

  private:
    struct Parts;
    std::unique_ptr<Parts> parts_;
};

}  // namespace tessarine
