// Files and folders in memory, with faults on request.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "core/runtime_error.h"
#include "platform/directory_listing.h"
#include "platform/files.h"

namespace tessarine::fakes {

enum class FileStep { Open, Read, Write, Flush, Close, CreateFolder, Copy, Remove, List };

/// "\" and "/" both separate, a run of them separates once; names differ by case. A new file is
/// listed after the older ones of its folder.
class MemoryFiles final : public Files, public DirectoryListing {
  public:
    bool file_exists(const std::string& path) override;
    bool folder_exists(const std::string& path) override;
    std::string present_name(const std::string& folder, const std::string& name) override;
    void create_folder(const std::string& path) override;
    std::unique_ptr<File> open(const std::string& path, OpenFor purpose) override;
    void copy(const std::string& from, const std::string& to) override;
    void remove(const std::string& path) override;
    std::vector<Entry> files_ending_in(const std::string& folder,
                                       const std::string& ending) override;

    // What a test prepares.

    /// Puts a file there, with its folders.
    void put(const std::string& path, const std::string& bytes);
    void make_folders(const std::string& path);
    void set_read_only(const std::string& path) { files_.at(normalised(path)).read_only = true; }
    /// The next `step` on `path` raises an error with these words; an empty path stands for any.
    void fail_next(FileStep step, const std::string& path, const std::string& words,
                   ErrorNumber number = ErrorNumber::Failed);
    /// The disk takes so many bytes more, over all files.
    void leave_room_for(std::size_t bytes) { room_ = bytes; }

    // What a test looks at.

    /// The bytes of a file; a file that is missing fails the test.
    std::string bytes(const std::string& path) const;
    /// All files, sorted, one path a line.
    std::string names() const;
    int open_files() const { return open_files_; }

  private:
    class OpenFile;
    struct StoredFile {
        std::string bytes;
        bool read_only = false;
        int age = 0;  // number of the creation
    };
    struct Fault {
        FileStep step;
        std::string path;
        RuntimeError error;
    };

    static std::string normalised(const std::string& path);
    StoredFile& existing(const std::string& path);
    StoredFile& opened_for_writing(const std::string& path, OpenFor purpose);
    void raise_if_due(FileStep step, const std::string& path);

    std::map<std::string, StoredFile> files_;
    std::set<std::string> folders_ = {""};
    std::deque<Fault> faults_;
    std::optional<std::size_t> room_;
    int created_ = 0;
    int open_files_ = 0;
};

}  // namespace tessarine::fakes
