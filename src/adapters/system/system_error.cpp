#include "adapters/system/system_error.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <system_error>

#include "core/code_page.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

struct KnownError {
    int error;
    ErrorNumber number;
    const char* description;
};

constexpr std::array kKnownErrors = {
    KnownError{ENOENT, ErrorNumber::FileNotFound, "File not found"},
    KnownError{ENOTDIR, ErrorNumber::PathNotFound, "Path not found"},
    KnownError{EEXIST, ErrorNumber::FileAlreadyExists, "File already exists"},
    KnownError{EACCES, ErrorNumber::PermissionDenied, "Permission denied"},
    KnownError{EPERM, ErrorNumber::PermissionDenied, "Permission denied"},
    KnownError{EROFS, ErrorNumber::PermissionDenied, "Permission denied: read-only file system"},
    KnownError{EISDIR, ErrorNumber::PermissionDenied, "Permission denied: it is a folder"},
    KnownError{ENXIO, ErrorNumber::PermissionDenied, "Permission denied: it is no plain file"},
    KnownError{ENOSPC, ErrorNumber::DiskFull, "Disk full"},
    KnownError{EDQUOT, ErrorNumber::DiskFull, "Disk full: the quota is used up"},
    KnownError{EFBIG, ErrorNumber::DiskFull, "Disk full: the file is too large"},
    KnownError{ENAMETOOLONG, ErrorNumber::BadFileName, "Bad file name: it is too long"},
    KnownError{EBADF, ErrorNumber::BadFileName, "Bad file name or number"},
    KnownError{EIO, ErrorNumber::InputOutput, "Device I/O error"},
};

}  // namespace

void raise_system_error(int error, Wanted wanted) {
    if (error == ENOENT && wanted == Wanted::Folder) error = ENOTDIR;
    const auto* known =
        std::find_if(kKnownErrors.begin(), kKnownErrors.end(),
                     [error](const KnownError& each) { return each.error == error; });
    if (known != kKnownErrors.end()) throw RuntimeError(known->number, known->description);
    throw RuntimeError(ErrorNumber::Failed, from_utf8(std::generic_category().message(error)));
}

std::string system_path(const std::string& path) {
    if (path.find('\0') != std::string::npos)
        throw RuntimeError(ErrorNumber::BadFileName, "Bad file name: it holds a zero character");
    std::string folded = to_utf8(path);
    std::replace(folded.begin(), folded.end(), '\\', '/');
    return folded;
}

}  // namespace tessarine
