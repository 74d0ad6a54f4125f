// Writes the files of one host into a store: the same bytes on every machine.
#include <algorithm>

#include "adapters/system/local_files.h"
#include "bench/arguments.h"
#include "bench/commands.h"
#include "bench/loaded_store.h"
#include "bench/log_lines.h"
#include "core/code_page.h"
#include "store/log_files.h"

namespace tessarine::bench {
namespace {

constexpr int kUsualLines = 600'000;
// The security log is the one to be measured; the other two are there to be loaded as well.
constexpr int kShareOfOtherLogs = 100;

Language language_of(const std::string& name) {
    if (name == "english") return Language::English;
    if (name == "german") return Language::German;
    throw UsageError("there are no events in " + name);
}

}  // namespace

void generate(std::span<char* const> words) {
    const Arguments arguments(words, {"--host", "--lines", "--language", "--seed"}, 1, 1);
    const std::string store = from_utf8(arguments.plain()[0]);
    const std::string host = from_utf8(arguments.value("--host"));
    if (host.empty() || !can_name_files(host)) throw UsageError("--host wants the name of a host");
    const Language language = language_of(arguments.value("--language", "english"));
    const int lines = arguments.number("--lines", kUsualLines);
    const auto seed = static_cast<std::uint64_t>(arguments.number("--seed", 1));
    LocalFiles files;
    ensure_store(files, store);
    for (const EventLog log : kEventLogs) {
        LogLines source(log, host, language, seed);
        const auto file = files.open(host_log_path(files, store, host, log), OpenFor::Writing);
        const int wanted = log == EventLog::Security ? lines : lines / kShareOfOtherLogs;
        for (int i = 0; i < wanted; ++i) file->write(source.next());
        file->close();
    }
}

}  // namespace tessarine::bench
