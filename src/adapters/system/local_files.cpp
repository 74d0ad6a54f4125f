#include "adapters/system/local_files.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <optional>
#include <vector>

#include "adapters/system/local_file.h"
#include "adapters/system/system_error.h"

namespace tessarine {
namespace {

constexpr std::size_t kCopyBlock = std::size_t{256} << 10;

// The kind of what has that name; nothing when there is no such thing, or no way to it.
std::optional<mode_t> kind_of(const std::string& path) {
    struct stat status {};
    const bool possible = path.find('\0') == std::string::npos;
    if (!possible || ::stat(system_path(path).c_str(), &status) != 0) return std::nullopt;
    return status.st_mode & S_IFMT;
}

// A new file beside the one that it is to replace; it vanishes unless it takes its place.
class Replacement {
  public:
    explicit Replacement(const std::string& target)
        : target_(target),
          path_(target.substr(0, target.rfind('/') + 1) + ".tessarine-" +
                std::to_string(::getpid())),
          file_(open_local_file(path_, OpenFor::Writing)) {}
    ~Replacement() {
        if (file_ != nullptr) ::unlink(path_.c_str());
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    void write(std::string_view bytes) { file_->write(bytes); }

    void take_place() {
        file_->close();
        if (std::rename(path_.c_str(), target_.c_str()) != 0) raise_system_error(errno);
        file_.reset();
    }

  private:
    std::string target_;
    std::string path_;
    std::unique_ptr<LocalFile> file_;
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

void LocalFiles::copy(const std::string& from, const std::string& to) {
    const auto source = open_local_file(system_path(from), OpenFor::Reading);
    Replacement target(system_path(to));
    std::vector<char> block(kCopyBlock);
    while (const std::size_t size = source->read(block.data(), block.size()))
        target.write({block.data(), size});
    target.take_place();
}

void LocalFiles::remove(const std::string& path) {
    if (::unlink(system_path(path).c_str()) != 0) raise_system_error(errno);
}

}  // namespace tessarine
