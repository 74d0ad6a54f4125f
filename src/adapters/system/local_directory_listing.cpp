#include "adapters/system/local_directory_listing.h"

#include <filesystem>
#include <system_error>

#include "adapters/system/system_error.h"
#include "core/code_page.h"
#include "core/text.h"

namespace tessarine {
namespace {

bool ends_in(const std::string& name, const std::string& ending) {
    return name.size() >= ending.size() &&
           same_text(std::string_view(name).substr(name.size() - ending.size()), ending);
}

}  // namespace

std::vector<DirectoryListing::Entry> LocalDirectoryListing::files_ending_in(
    const std::string& folder, const std::string& ending) {
    std::vector<Entry> entries;
    std::error_code error;
    std::filesystem::directory_iterator found(system_path(folder), error);
    for (; !error && found != std::filesystem::directory_iterator(); found.increment(error)) {
        const std::string system_name = found->path().filename().string();
        const std::string name = from_utf8(system_name);
        // A file may vanish under the listing, and then is none.
        std::error_code vanished;
        if (!ends_in(name, ending) || to_utf8(name) != system_name ||
            !found->is_regular_file(vanished))
            continue;
        const std::uintmax_t size = found->file_size(vanished);
        if (!vanished) entries.push_back({name, size});
    }
    if (error) raise_system_error(error.value(), Wanted::Folder);
    return entries;
}

}  // namespace tessarine
