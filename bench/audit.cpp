// Audits one host over the network, as the window's commands do once the host is known to be there.
#include <cstdint>
#include <iostream>
#include <string>

#include "adapters/system/freed_memory.h"
#include "adapters/system/sqlite_settings.h"
#include "adapters/wsman/wsman_event_source.h"
#include "audit/audit_host.h"
#include "bench/arguments.h"
#include "bench/commands.h"
#include "bench/idle_platform.h"
#include "bench/json_text.h"
#include "bench/repetition.h"
#include "core/code_page.h"

namespace tessarine::bench {
namespace {

// The records that the audit walked, by the progress that it showed; none if it came to no walk.
std::int64_t records_of(const Console& console) {
    const bool walked = console.Form1.AuditStat.text == "ok" && console.Form1.st1.text(1).empty();
    return walked ? console.Form1.pbar1.maximum() : 0;
}

void choose_option(Console& console, const std::string& option) {
    SettingsForm& settings = console.Form3.get();
    if (option == "append")
        settings.choose(settings.optAppend);
    else if (option == "move")
        settings.choose(settings.optMove);
    else if (option == "overwrite")
        settings.choose(settings.optOverwrite);
    else
        throw UsageError("there is no option " + option);
}

}  // namespace

void audit(std::span<char* const> words) {
    const Arguments arguments(words, {"--settings", "--option", "--kind", "--again"}, 2, 2);
    keep_freed_memory();
    IdlePlatform idle;
    WsmanEventSource source({});
    SqliteSettings settings(from_utf8(arguments.value("--settings", "settings.db")));
    Console console(idle.platform(source, settings));
    choose_option(console, arguments.value("--option", "overwrite"));
    console.Form3->txtLogPath.text = from_utf8(arguments.plain()[0]);
    console.Form3->txtArchivePath.text = console.Form3->txtLogPath.text;
    const std::string host = from_utf8(arguments.plain()[1]);
    const std::string measured = repeated(
        arguments, [&] { AuditHost(console, host, arguments.value("--kind", "full"), {}); });
    std::cout << "{\"outcome\": " << json_text(to_utf8(console.Form1.AuditStat.text))
              << ", \"panel1\": " << json_text(to_utf8(console.Form1.st1.text(1)))
              << ", \"records\": " << records_of(console) << ", " << measured << "}\n";
}

}  // namespace tessarine::bench
