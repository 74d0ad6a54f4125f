#include "adapters/system/folder_names.h"

#include <chrono>
#include <system_error>

#include "adapters/system/names_in_folder.h"
#include "adapters/system/system_error.h"
#include "core/code_page.h"
#include "core/text.h"

namespace tessarine {
namespace {

namespace fs = std::filesystem;

// A store has four folders; its archive has one for each audit.
constexpr std::size_t kMostFolders = 16;
// The system's clock for folders stands still for so long.
constexpr std::chrono::milliseconds kClockTick{20};

std::unordered_map<std::string, std::string> names_by_lower_case(const std::string& folder) {
    std::unordered_map<std::string, std::string> names;
    for (const std::string& system_name : names_in_folder(folder)) {
        const std::string name = from_utf8(system_name);
        if (to_utf8(name) != system_name) continue;
        const auto [place, is_new] = names.try_emplace(lower_text(name), name);
        if (!is_new && name < place->second) place->second = name;
    }
    return names;
}

}  // namespace

// What was read within a tick of the change may lack a part of it.
bool FolderNames::is_current(const Names& names, Moment changed) {
    return names.changed == changed && changed + kClockTick < names.read;
}

std::string FolderNames::in_any_case(const std::string& folder, const std::string& name) {
    std::error_code error;
    const Moment changed = fs::last_write_time(folder, error);
    if (error == std::errc::no_such_file_or_directory || error == std::errc::not_a_directory)
        return name;
    if (error) raise_system_error(error.value(), Wanted::Folder);
    if (folders_.size() >= kMostFolders && !folders_.contains(folder)) folders_.clear();
    Names& names = folders_[folder];
    if (!is_current(names, changed)) {
        const Moment read = Moment::clock::now();
        names.by_lower_case = names_by_lower_case(folder);
        names.changed = changed;
        names.read = read;
    }
    const auto found = names.by_lower_case.find(lower_text(name));
    return found == names.by_lower_case.end() ? name : found->second;
}

}  // namespace tessarine
