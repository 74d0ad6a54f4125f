// A folder of the disk that is there for one test.
#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace tessarine {

class TemporaryFolder {
  public:
    explicit TemporaryFolder(
        const std::filesystem::path& parent = std::filesystem::temp_directory_path()) {
        std::string name = (parent / "tessarine-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) ADD_FAILURE() << "there is no room for a folder";
        path_ = name;
    }
    ~TemporaryFolder() { std::filesystem::remove_all(path_); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string path() const { return path_; }
    std::string path_of(const std::string& name) const { return path_ + "/" + name; }

    std::string bytes_of(const std::string& name) const {
        std::ifstream file(path_of(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void put(const std::string& name, const std::string& bytes) const {
        std::ofstream(path_of(name), std::ios::binary) << bytes;
    }
    std::filesystem::perms rights_of(const std::string& name) const {
        return std::filesystem::status(path_of(name)).permissions();
    }

  private:
    std::string path_;
};

}  // namespace tessarine
