// What the window does while a routine keeps the thread.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QTest>

#include "ui/window_rig.h"

namespace tessarine::fakes {
namespace {

// Counts so long that the window paints several times.
void count_for(Console& console, int milliseconds) {
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; clock.elapsed() < milliseconds; ++i)
        console.Form1.st1.set_count(3, {.before = "Record ", .number = i});
}

TEST(Repainting, ShowsProgressInTheMidstOfARoutine) {
    WindowRig window;
    window.start();
    QString seen;
    QTimer look;
    QObject::connect(&look, &QTimer::timeout,
                     [&] { seen = window.find<QLabel>("st1_panel3").text(); });
    look.start(1);
    run_event(window.console, [](Console& console) {
        console.Form1.pbar1.set_visible(true);
        count_for(console, 150);
    });
    EXPECT_TRUE(seen.startsWith("Record ")) << qPrintable(seen);
    EXPECT_TRUE(window.find("pbar1").isVisible());
}

TEST(Repainting, HoldsBackWhatTheUserDoesAndTimers) {
    WindowRig window;
    window.start();
    bool tried = false;
    QTimer user;
    user.setSingleShot(true);
    QObject::connect(&user, &QTimer::timeout, [&] {
        tried = true;
        window.trigger("shogrid");
        window.windows.main_window().close();
    });
    user.start(1);
    run_event(window.console, [](Console& console) { count_for(console, 150); });
    EXPECT_TRUE(tried);
    EXPECT_FALSE(window.console.Form1.shogrid.checked);
    EXPECT_FALSE(window.rig.program.ended);
    window.trigger("shogrid");
    EXPECT_TRUE(window.console.Form1.shogrid.checked);
}

TEST(Repainting, CountsAreAsFastAsTheyMustBeForEachRecord) {
    WindowRig window;
    window.start();
    QElapsedTimer clock;
    clock.start();
    for (int i = 0; i < 1'000'000; ++i)
        window.console.Form1.st1.set_count(3, {.before = "Record ", .number = i});
    EXPECT_LT(clock.elapsed(), 3000);
}

TEST(Repainting, APassedHourglassIsShownAndTakenBack) {
    WindowRig window;
    window.start();
    run_event(window.console, [&](Console& console) {
        console.mouse_pointer = kPointerHourglass;
        window.windows.let_events_pass();
        EXPECT_NE(QApplication::overrideCursor(), nullptr);
        console.mouse_pointer = kPointerDefault;
    });
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(Repainting, AnErrorInARoutineIsToldAndEndsTheProgram) {
    WindowRig window;
    window.start();
    run_event(window.console,
              [](Console&) { throw RuntimeError(ErrorNumber::FileNotFound, "File not found"); });
    EXPECT_EQ(window.rig.dialogs.messages.size(), 1U);
    EXPECT_TRUE(window.rig.program.ended);
    EXPECT_FALSE(window.windows.main_window().isVisible());
}

}  // namespace
}  // namespace tessarine::fakes
