#include "core/console_state.h"

#include <utility>

#include "core/settings_store.h"
#include "platform/program.h"

namespace tessarine {

Console::Console(const Platform& its_platform, RegionalText regional_forms)
    : platform(its_platform),
      regional(std::move(regional_forms)),
      Form1(its_platform.table_memory),
      Form3(FormId::Form3,
            [this] { return std::make_unique<SettingsForm>(platform.secret_memory); }) {
    Form3.when_loaded([this](SettingsForm&) { LoadSettings(*this); });
}

void end_console(Console& console) {
    console.Form2.unload();
    console.Form3.unload();
    console.Form4.unload();
    console.Form5.unload();
    console.Form6.unload();
    console.ConCheck.unload();
    console.AboutForm.unload();
    console.Form1.loaded = false;
    console.platform.program.end();
}

}  // namespace tessarine
