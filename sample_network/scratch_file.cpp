#include "sample_network/scratch_file.h"

#include <sys/stat.h>

#include <cstdlib>
#include <string>

#include "sample_network/wire/file_descriptor.h"

namespace tessarine::sample {
namespace {

std::string name_pattern() {
    return (std::filesystem::temp_directory_path() / "tessarine-sample-XXXXXX").string();
}

}  // namespace

ScratchFile::ScratchFile(std::string_view text) {
    std::string name = name_pattern();
    const FileDescriptor file(checked(mkstemp(name.data()), name));
    path_ = name;
    checked(static_cast<int>(write(file.get(), text.data(), text.size())), name);
}

ScratchFile::~ScratchFile() {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
}

ScratchFolder::ScratchFolder() {
    std::string name = name_pattern();
    if (mkdtemp(name.data()) == nullptr) checked(-1, name);
    path_ = name;
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

}  // namespace tessarine::sample
