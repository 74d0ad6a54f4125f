#include "audit/connection_check.h"

#include "core/console_state.h"
#include "core/run_event.h"
#include "platform/form_windows.h"
#include "platform/tcp_probe.h"

namespace tessarine {
namespace {

constexpr int kRpcEndpointMapper = 135;

// The events of the connection come through the same door as those of the window. One that comes
// when the form has gone is late and counts for nothing.
void note_state(Console& console, const char* state) {
    run_event(console, [state](Console& at_event) {
        if (ConnectionCheckForm* form = at_event.ConCheck.if_loaded())
            form->lblReturn.caption = state;
    });
}

}  // namespace

void test_host(Console& console, const std::string& host) {
    console.ConCheck->lblHostName.caption = host;
    console.platform.tcp_probe.connect(host, kRpcEndpointMapper,
                                       {.connected = [&] { note_state(console, "connected"); },
                                        .failed = [&] { note_state(console, "port down"); }});
    console.platform.form_windows.show_modal(console.ConCheck.kId);
}

void end_connection_attempt(Console& console) {
    const bool connected = console.ConCheck->lblReturn.caption == "connected";
    console.Form1.lblReturn.caption = connected ? "hostok" : "hostdown";
    console.platform.tcp_probe.close();
    console.ConCheck.unload();
}

}  // namespace tessarine
