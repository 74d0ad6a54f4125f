// What the window does while a routine keeps the thread.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QLabel>
#include <QProgressBar>
#include <QTest>
#include <QToolTip>
#include <utility>

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
    });
    user.start(1);
    run_event(window.console, [](Console& console) { count_for(console, 150); });
    EXPECT_TRUE(tried);
    EXPECT_FALSE(window.console.Form1.shogrid.checked);
    window.trigger("shogrid");
    EXPECT_TRUE(window.console.Form1.shogrid.checked);
}

// Whether a move of the pointer has come out of the window system's queue, in which the wish to
// close a window waits as well.
class PointerMove : public QObject {
  public:
    PointerMove() {
        qApp->installEventFilter(this);
        QCursor::setPos(QCursor::pos() + QPoint(1, 1));
    }
    bool has_come = false;

  protected:
    bool eventFilter(QObject*, QEvent* event) override {
        has_come = has_come || event->type() == QEvent::MouseMove;
        return false;
    }
};

// The window of an audit of PC1 and PC2, which answer at once to tests of a tenth of a second.
struct AuditedHosts : WindowRig {
    AuditedHosts() {
        for (const char* name : {"PC1", "PC2"}) {
            console.Form1.ListView1.add_row(name, 1).add_sub_item("-");
            rig.network.hosts[name].records = {{}};
        }
        console.ConCheck.when_loaded([](ConnectionCheckForm& form) {
            form.Timer1.interval = 100;
            form.lblReturn.caption = "connected";
        });
        start();
    }
    void use_mouse_and_keys() {
        click_row(find("ListView1"), 1);
        auto& entry = find<QAction>("loadfrmlist");
        QShortcutEvent keys(entry.shortcut(), 0);
        QCoreApplication::sendEvent(&entry, &keys);
    }
    bool is_untouched() {
        return rig.dialogs.choices.empty() && !console.Form1.ListView1.row(2).selected();
    }
    // What the user does while the event source waits for a host.
    void while_waiting(int milliseconds, const std::function<void()>& act) {
        QTimer::singleShot(milliseconds / 2, &windows.main_window(), act);
        QElapsedTimer clock;
        clock.start();
        while (!clock.hasExpired(milliseconds)) windows.tick();
    }
};

TEST(Repainting, ACloseBoxIsHeardWhileAHostIsReadAndAllElseIsDropped) {
    AuditedHosts window;
    QString said;
    window.rig.network.hosts["PC1"].before_record = [&](int, int) {
        const PointerMove move;
        window.while_waiting(200, [&] {
            EXPECT_TRUE(move.has_come);
            window.use_mouse_and_keys();
            window.windows.main_window().close();
        });
        said = window.find<QLabel>("st1_panel5").text();
        EXPECT_FALSE(window.rig.program.ended);
    };
    window.trigger("runFullauditAllhost");
    EXPECT_TRUE(window.is_untouched());
    EXPECT_EQ(said, "Closing when done ...");
    EXPECT_EQ(window.rig.network.connects, 1);
    EXPECT_TRUE(window.rig.program.ended);
    EXPECT_FALSE(window.windows.main_window().isVisible());
}

TEST(Repainting, ACloseBoxIsHeardWhileAHostIsTestedAndAllElseIsDropped) {
    AuditedHosts window;
    window.when_open("ConCheck", [&](QWidget&) {
        // One would keep the window system's wish from the main window.
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
        window.use_mouse_and_keys();
        window.windows.main_window().close();
        EXPECT_FALSE(window.rig.program.ended);
    });
    window.trigger("runFullauditAllhost");
    EXPECT_TRUE(window.is_untouched());
    EXPECT_EQ(window.rig.network.connects, 0);
    EXPECT_EQ(window.rig.probe.attempts.size(), 1U);
    EXPECT_TRUE(window.rig.program.ended);
}

TEST(Repainting, WhoClicksWhileAHostIsSilentIsToldToBePatient) {
    AuditedHosts window;
    QStringList told;
    window.rig.network.hosts["PC1"].before_record = [&](int pass, int) {
        if (pass > 1) return;
        EXPECT_EQ(std::exchange(window.console.pending_request.after, 150), 1000);
        // The first answer comes in time, the second one doesn't.
        for (const int wait : {100, 400}) {
            window.console.Form1.st1.set_text(1, "an answer");
            window.while_waiting(wait, [&] { click_row(window.find("ListView1"), 1); });
            told += QToolTip::text();
        }
    };
    window.trigger("runFullauditAllhost");
    EXPECT_EQ(told, QStringList({"", "Patience Is Gold.. Please Wait For A Moment..."}));
    // From now on the user has the window again.
    window.rig.dialogs.choose_file_next("");
    window.use_mouse_and_keys();
    EXPECT_EQ(window.rig.dialogs.choices.size(), 1U);
    EXPECT_FALSE(window.is_untouched());
    EXPECT_EQ(window.rig.network.connects, 2);
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
