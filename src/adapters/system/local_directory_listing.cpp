#include "adapters/system/local_directory_listing.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstdint>

#include "adapters/system/names_in_folder.h"
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
    const std::string path = system_path(folder) + "/";
    for (const std::string& system_name : names_in_folder(path)) {
        const std::string name = from_utf8(system_name);
        if (!ends_in(name, ending) || to_utf8(name) != system_name) continue;
        struct stat status {};
        if (::stat((path + system_name).c_str(), &status) == 0) {
            if (S_ISREG(status.st_mode))
                entries.push_back({name, static_cast<std::uintmax_t>(status.st_size)});
        } else if (errno != ENOENT && errno != ELOOP) {
            // A file may vanish under the listing, and then is none.
            raise_system_error(errno);
        }
    }
    return entries;
}

}  // namespace tessarine
