// The window tests run without a display.
#include <gmock/gmock.h>

#include <QApplication>

#include "app/console_program.h"

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleMock(&argc, argv);
    QApplication application(argc, argv);
    tessarine::prepare_application(application);
    return RUN_ALL_TESTS();
}
