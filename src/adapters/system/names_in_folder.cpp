#include "adapters/system/names_in_folder.h"

#include <dirent.h>

#include <cerrno>
#include <memory>

#include "adapters/system/system_error.h"

namespace tessarine {

// The standard library's iterator ends the program where it has no memory.
std::vector<std::string> names_in_folder(const std::string& folder) {
    struct Close {
        void operator()(DIR* folder) const { closedir(folder); }
    };
    const std::unique_ptr<DIR, Close> open(opendir(folder.c_str()));
    if (open == nullptr) raise_system_error(errno, Wanted::Folder);
    std::vector<std::string> names;
    for (;;) {
        errno = 0;
        const dirent* entry = readdir(open.get());
        if (entry == nullptr && errno != 0) raise_system_error(errno);
        if (entry == nullptr) return names;
        const std::string name = entry->d_name;
        if (name != "." && name != "..") names.push_back(name);
    }
}

}  // namespace tessarine
