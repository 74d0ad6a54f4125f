// The values of a settings store: whatever stands in it is read, and what a save has written is
// read as it was.
#include <algorithm>
#include <array>
#include <map>

#include "app/events.h"
#include "chrome/settings_dialog.h"
#include "core/scramble.h"
#include "core/settings_store.h"
#include "fakes/rig.h"
#include "fuzz/promises.h"

namespace tessarine::fuzz {
namespace {

constexpr std::array kNames = {
    "LogPath",      "ArcPath",      "AuditOpt",    "usealtcred",           "altuser",   "altpass",
    "mailto",       "mailfrom",     "mailsmtp",    "autoauditat",          "showgrid",  "highpat",
    "autosendmail", "autohostlist", "enscheaudit", "autoretlogsolderthan", "hideignore"};

// What all four pages write for the settings as they stand.
std::vector<std::string> saved(fakes::Rig& rig) {
    rig.settings.written.clear();
    for (const auto save :
         {save_audit_settings, save_credentials, save_mail_settings, save_schedule})
        rig.run(save);
    return rig.settings.written;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fakes::Rig rig(control_events());
    std::string_view rest = text_of(data, size);
    // The first byte of each piece says which value it is, the second which type, the third how
    // long it is.
    while (rest.size() > 3) {
        const auto at = [&](std::size_t i) { return static_cast<unsigned char>(rest[i]); };
        const char* name = kNames.at(at(0) % kNames.size());
        constexpr ValueType kTypes[] = {ValueType::Text, ValueType::Text, ValueType::Number,
                                        ValueType::Binary};
        const std::string_view bytes = rest.substr(3, std::size_t{at(2)} * (at(1) % 16 + 1));
        rig.settings.put(name, {kTypes[at(1) % 4], std::string(bytes)});
        rest.remove_prefix(std::min(rest.size(), bytes.size() + 3));
    }
    rig.run(LoadSettings);
    const std::vector<std::string> first = saved(rig);
    rig.console.Form3.unload();
    rig.run(LoadSettings);
    const bool readable = std::all_of(first.begin(), first.end(),
                                      [](const std::string& line) { return line.size() < 2000; });
    hold(!readable || saved(rig) == first, "what was saved is read as it was");
    hold(!rig.program.ended && rig.dialogs.messages.empty(), "nothing is said of a value");
    const std::string text(text_of(data, size));
    hold(Scramble(Scramble(text, kScrambleKey), kScrambleKey) == text, "scrambling is undone");
    return 0;
}

}  // namespace tessarine::fuzz
