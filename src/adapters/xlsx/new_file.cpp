#include "adapters/xlsx/new_file.h"

#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "core/code_page.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

std::string temporary_folder() {
    std::error_code error;
    std::filesystem::path folder = std::filesystem::temp_directory_path(error);
    if (!error) folder = std::filesystem::absolute(folder, error);
    if (error) raise_workbook_error(error.value());
    std::string name = folder.string();
    // The console takes a "\" for a separator.
    if (to_utf8(from_utf8(name)) != name || name.find('\\') != std::string::npos)
        throw RuntimeError(ErrorNumber::BadFileName,
                           "The temporary folder " + from_utf8(name) +
                               " holds characters that Tessarine can't keep; set TMPDIR to "
                               "another folder");
    return name;
}

}  // namespace

void raise_workbook_error(int error) {
    const bool full = error == ENOSPC || error == EDQUOT;
    const std::string cause = from_utf8(std::generic_category().message(error));
    throw RuntimeError(full ? ErrorNumber::DiskFull : ErrorNumber::Failed,
                       "The workbook can't be written to the temporary folder: " + cause);
}

NewFile::NewFile(const std::string& ending)
    : folder_(temporary_folder()), path_(folder_ + "/tessarine-XXXXXX" + ending) {
    const int descriptor = ::mkstemps(path_.data(), static_cast<int>(ending.size()));
    if (descriptor < 0) raise_workbook_error(errno);
    ::close(descriptor);
}

NewFile::~NewFile() {
    if (!kept_) ::unlink(path_.c_str());
}

void NewFile::check_room(std::uintmax_t bytes) const {
    std::error_code error;
    const std::filesystem::space_info disk = std::filesystem::space(folder_, error);
    if (!error && disk.available < bytes) raise_workbook_error(ENOSPC);
}

}  // namespace tessarine
