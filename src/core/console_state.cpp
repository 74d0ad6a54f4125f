#include "core/console_state.h"

#include <utility>

#include "core/settings_store.h"
#include "core/tabs.h"
#include "platform/program.h"

namespace tessarine {

Console::Console(const Platform& its_platform, RegionalText regional_forms)
    : platform(its_platform),
      regional(std::move(regional_forms)),
      Form1(its_platform.table_memory),
      Form3([this] { return std::make_unique<SettingsForm>(platform.secret_memory); }) {
    Form3.when_loaded([this](SettingsForm& form) {
        position_settings(form);
        LoadSettings(*this);
    });
}

void end_console(Console& console) {
    console.visit_forms([](auto& form) { form.unload(); });
    console.platform.program.end();
}

}  // namespace tessarine
