#include "core/run_event.h"

#include <exception>
#include <new>
#include <string>

#include "core/console_state.h"
#include "core/runtime_error.h"
#include "platform/dialogs.h"
#include "platform/form_windows.h"

namespace tessarine {
namespace {

using Words = std::function<std::string()>;

// False when there is no memory for the words.
bool tell(Console& console, const Words& words) {
    try {
        console.platform.dialogs.message_box(words(), MessageStyle::Critical);
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

std::string words_for_no_memory() {
    return "There is not enough memory to go on.";
}

// Shows why the program must end, and ends it in order.
void end_with_message(Console& console, const Words& words) {
    console.mouse_pointer = kPointerDefault;
    if (!tell(console, words)) tell(console, words_for_no_memory);
    // A routine that this event came in between of must not go on without the forms.
    if (console.events_running > 1) console.end_wanted = true;
    end_console(console);
}

}  // namespace

void run_event(Console& console, const std::function<void(Console&)>& routine) noexcept {
    ++console.events_running;
    try {
        routine(console);
    } catch (const RuntimeError& error) {
        end_with_message(console, [&error] {
            return "Run-time error '" + std::to_string(static_cast<int>(error.number())) +
                   "':\r\n\r\n" + error.description();
        });
    } catch (const std::bad_alloc&) {
        end_with_message(console, words_for_no_memory);
    } catch (const std::exception& error) {
        end_with_message(console, [&error] {
            return std::string("Tessarine has made a mistake and must end:\r\n\r\n") + error.what();
        });
    }
    --console.events_running;
    if (console.end_wanted && console.events_running == 0) end_console(console);
    console.platform.form_windows.event_ended();
}

void end_after_event(Console& console) {
    if (console.events_running == 0) {
        run_event(console, end_console);
        return;
    }
    console.end_wanted = true;
    console.Form1.st1.set_text(5, "Closing when done ...");
}

}  // namespace tessarine
