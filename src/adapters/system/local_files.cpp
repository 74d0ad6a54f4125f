#include "adapters/system/local_files.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <optional>
#include <random>
#include <thread>
#include <utility>
#include <vector>

#include "adapters/system/local_file.h"
#include "adapters/system/system_error.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

constexpr std::size_t kCopyBlock = std::size_t{256} << 10;

// The kind of what has that name; nothing when it is certain that there is no such thing.
std::optional<mode_t> kind_of(const std::string& path) {
    if (path.find('\0') != std::string::npos) return std::nullopt;
    struct stat status {};
    if (::stat(system_path(path).c_str(), &status) == 0) return status.st_mode & S_IFMT;
    if (errno == ENOENT || errno == ENOTDIR || errno == ENAMETOOLONG) return std::nullopt;
    raise_system_error(errno);
}

// The folder that a path leads into, with the separator.
std::string folder_of(const std::string& path) {
    return path.substr(0, path.rfind('/') + 1);
}

std::string random_name() {
    std::random_device random;
    std::string name = ".tessarine-";
    for (int i = 0; i < 4; ++i) name += std::to_string(random());
    return name;
}

// Names that were made or changed in a folder stay when the power fails.
void sync_folder(const std::string& folder) {
    const int descriptor =
        ::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0) raise_system_error(errno, Wanted::Folder);
    const int error = ::fsync(descriptor) == 0 || errno == EINVAL ? 0 : errno;
    ::close(descriptor);
    if (error != 0) raise_system_error(error);
}

// A new file beside the one that it is to replace; it vanishes unless it takes its place.
class Replacement {
  public:
    explicit Replacement(const std::string& target)
        : target_(target),
          path_(folder_of(target) + random_name()),
          file_(create_local_file(path_)) {
        if (file_ == nullptr) raise_system_error(EEXIST);
    }
    ~Replacement() {
        if (file_ != nullptr) ::unlink(path_.c_str());
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    void write(std::string_view bytes) { file_->write(bytes); }

    void take_place() {
        file_->sync();
        file_->close();
        if (std::rename(path_.c_str(), target_.c_str()) != 0) raise_system_error(errno);
        file_.reset();
        sync_folder(folder_of(target_));
    }

  private:
    std::string target_;
    std::string path_;
    std::unique_ptr<LocalFile> file_;
};

class DescriptorLock final : public FileLock {
  public:
    explicit DescriptorLock(int descriptor) : descriptor_(descriptor) {}
    ~DescriptorLock() override { ::close(descriptor_); }
    DescriptorLock(const DescriptorLock&) = delete;
    DescriptorLock& operator=(const DescriptorLock&) = delete;

  private:
    int descriptor_;
};

}  // namespace

bool LocalFiles::file_exists(const std::string& path) {
    const auto kind = kind_of(path);
    return kind && *kind != S_IFDIR;
}

bool LocalFiles::folder_exists(const std::string& path) {
    return kind_of(path) == std::optional<mode_t>(S_IFDIR);
}

std::string LocalFiles::present_name(const std::string& folder, const std::string& name) {
    const bool possible = folder.find('\0') == std::string::npos;
    if (!possible || kind_of(folder + "/" + name)) return name;
    return names_.in_any_case(system_path(folder + "/"), name);
}

void LocalFiles::create_folder(const std::string& path) {
    const std::string folder = system_path(path);
    if (::mkdir(folder.c_str(), S_IRWXU) != 0) raise_system_error(errno, Wanted::Folder);
    if (::chmod(folder.c_str(), S_IRWXU) != 0) raise_system_error(errno, Wanted::Folder);
}

std::unique_ptr<File> LocalFiles::open(const std::string& path, OpenFor purpose) {
    return open_local_file(system_path(path), purpose);
}

std::unique_ptr<File> LocalFiles::create(const std::string& path) {
    return create_local_file(system_path(path));
}

// One that may not be written stays, as with any other change of it.
void LocalFiles::replace(const std::string& path, std::string_view bytes) {
    const std::string name = system_path(path);
    if (::access(name.c_str(), W_OK) != 0 && errno != ENOENT) raise_system_error(errno);
    Replacement target(name);
    target.write(bytes);
    target.take_place();
}

void LocalFiles::copy(const std::string& from, const std::string& to) {
    const auto source = open_local_file(system_path(from), OpenFor::Reading);
    Replacement target(system_path(to));
    std::vector<char> block(kCopyBlock);
    while (const std::size_t size = source->read(block.data(), block.size()))
        target.write({block.data(), size});
    target.take_place();
}

std::unique_ptr<FileLock> LocalFiles::lock(const std::string& path,
                                           std::chrono::milliseconds patience) {
    constexpr std::chrono::milliseconds kBetweenTries{20};
    const int descriptor = ::open(system_path(path).c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0) raise_system_error(errno);
    auto held = std::make_unique<DescriptorLock>(descriptor);
    const auto end = std::chrono::steady_clock::now() + patience;
    while (::flock(descriptor, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        if (std::chrono::steady_clock::now() >= end) return nullptr;
        std::this_thread::sleep_for(kBetweenTries);
    }
    return held;
}

void LocalFiles::demand_own_folder(const std::string& path) {
    struct stat status {};
    if (::stat(system_path(path).c_str(), &status) != 0) raise_system_error(errno, Wanted::Folder);
    const std::string folder = "Permission denied: the folder " + path;
    if (status.st_uid != ::geteuid())
        throw RuntimeError(ErrorNumber::PermissionDenied, folder + " belongs to another user");
    if ((status.st_mode & (S_IWGRP | S_IWOTH)) != 0)
        throw RuntimeError(ErrorNumber::PermissionDenied, folder + " can be written by others");
}

void LocalFiles::remove(const std::string& path) {
    if (::unlink(system_path(path).c_str()) != 0) raise_system_error(errno);
}

}  // namespace tessarine
