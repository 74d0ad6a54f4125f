#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

#include "core/error_regime.h"
#include "core/run_event.h"
#include "core/status_bar.h"
#include "fakes/rig.h"

namespace tessarine {
namespace {

using fakes::Rig;

[[noreturn]] bool fail() {
    throw RuntimeError(ErrorNumber::FileNotFound, "File not found");
}

TEST(ErrorRegime, IgnoresFromWhereItSaysSo) {
    ErrorRegime errors;
    EXPECT_THROW(errors.run(fail), RuntimeError);
    EXPECT_THROW(errors.passes(fail), RuntimeError);
    errors.ignore_from_here();
    EXPECT_NO_THROW(errors.run(fail));
    EXPECT_TRUE(errors.passes(fail)) << "a failed test counts as passed";
    EXPECT_FALSE(errors.passes([] { return false; }));
    EXPECT_THROW(errors.run([] { throw std::logic_error("ours"); }), std::logic_error);
}

TEST(StatusBar, FormsCountsAsTheyAreRead) {
    StatusBar bar(5);
    bar.set_count(3, {"Loading record ... ", 41, " of System log"});
    EXPECT_EQ(bar.text(3), "Loading record ... 41 of System log");
    bar.set_count(3, {" processing record : ", 2, "/", 9});
    EXPECT_EQ(bar.text(3), " processing record : 2/9");
    bar.set_text(3, "");
    EXPECT_EQ(bar.text(3), "");
}

TEST(ProgressBar, TakesNoValueBeyondItsEnds) {
    ProgressBar bar;
    bar.set_maximum(3);
    bar.set_value(3);
    EXPECT_THROW(bar.set_value(4), RuntimeError);
    EXPECT_THROW(bar.set_value(-1), RuntimeError);
    EXPECT_THROW(bar.set_maximum(0), RuntimeError);
    EXPECT_EQ(bar.value(), 3);
    EXPECT_EQ(bar.maximum(), 3);
}

TEST(RunEvent, EndsTheProgramWithAMessageWhenARoutineFails) {
    Rig rig;
    rig.run([](Console& console) { console.Form3->txtHosts.text = "touched"; });
    EXPECT_FALSE(rig.program.ended);
    EXPECT_EQ(rig.windows.events_ended, 1);

    rig.console.mouse_pointer = kPointerHourglass;
    rig.run([](Console&) { fail(); });
    EXPECT_TRUE(rig.program.ended);
    EXPECT_EQ(rig.dialogs.messages.back(),
              (fakes::ScriptedDialogs::Message{"Run-time error '53':\r\n\r\nFile not found",
                                               MessageStyle::Critical}));
    EXPECT_EQ(rig.console.mouse_pointer, kPointerDefault);
    EXPECT_FALSE(rig.console.Form3.loaded());
    EXPECT_EQ(rig.windows.events_ended, 2);
}

TEST(RunEvent, LetsNoExceptionOfAnyKindOut) {
    const std::function<void(Console&)> routines[] = {
        [](Console&) { throw std::bad_alloc(); }, [](Console&) { throw std::logic_error("x"); }};
    for (const auto& routine : routines) {
        Rig rig;
        rig.run(routine);
        EXPECT_TRUE(rig.program.ended);
        EXPECT_EQ(rig.dialogs.messages.size(), 1u);
    }
}

}  // namespace
}  // namespace tessarine
