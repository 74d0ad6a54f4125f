// Files and settings that end the process at a step, as a kill or a power failure would.
#pragma once

#include <csignal>
#include <memory>
#include <string>
#include <utility>

#include "platform/files.h"
#include "platform/settings_values.h"

namespace tessarine::fakes {

/// Before its step of that number, counted from 1, the process is killed; it never is for 0.
class Death {
  public:
    explicit Death(int step) : steps_left_(step) {}

    void step() {
        if (steps_left_ > 0 && --steps_left_ == 0) std::raise(SIGKILL);
    }

  private:
    int steps_left_;
};

class MortalFile final : public File {
  public:
    MortalFile(std::unique_ptr<File> file, Death& death) : file_(std::move(file)), death_(death) {}

    std::size_t read(char* buffer, std::size_t size) override {
        return file_->read(buffer, size);  // changes nothing
    }
    void write(std::string_view bytes) override { death_.step(), file_->write(bytes); }
    void flush() override { death_.step(), file_->flush(); }
    void write_whole(std::string_view bytes) override { death_.step(), file_->write_whole(bytes); }
    void reserve(std::size_t bytes) override { death_.step(), file_->reserve(bytes); }
    void sync() override { death_.step(), file_->sync(); }
    void close() override { death_.step(), file_->close(); }

  private:
    std::unique_ptr<File> file_;
    Death& death_;
};

class MortalFiles final : public Files {
  public:
    MortalFiles(Files& files, Death& death) : files_(files), death_(death) {}

    bool file_exists(const std::string& path) override { return files_.file_exists(path); }
    bool folder_exists(const std::string& path) override { return files_.folder_exists(path); }
    std::string present_name(const std::string& folder, const std::string& name) override {
        return files_.present_name(folder, name);
    }
    void demand_own_folder(const std::string& path) override { files_.demand_own_folder(path); }
    void create_folder(const std::string& path) override {
        death_.step(), files_.create_folder(path);
    }
    std::unique_ptr<File> open(const std::string& path, OpenFor purpose) override {
        death_.step();
        return mortal(files_.open(path, purpose));
    }
    std::unique_ptr<File> create(const std::string& path) override {
        death_.step();
        return mortal(files_.create(path));
    }
    void replace(const std::string& path, std::string_view bytes) override {
        death_.step(), files_.replace(path, bytes);
    }
    void copy(const std::string& from, const std::string& to) override {
        death_.step(), files_.copy(from, to);
    }
    std::unique_ptr<FileLock> lock(const std::string& path,
                                   std::chrono::milliseconds patience) override {
        death_.step();
        return files_.lock(path, patience);
    }
    void remove(const std::string& path) override { death_.step(), files_.remove(path); }

  private:
    std::unique_ptr<File> mortal(std::unique_ptr<File> file) {
        return file == nullptr ? nullptr : std::make_unique<MortalFile>(std::move(file), death_);
    }

    Files& files_;
    Death& death_;
};

class MortalSettings final : public SettingsValues {
  public:
    MortalSettings(SettingsValues& values, Death& death) : values_(values), death_(death) {}

    std::string check() override { return values_.check(); }
    std::optional<StoredValue> read(const std::string& key, const std::string& name) override {
        return values_.read(key, name);
    }
    void write(const std::string& key, const std::string& name, const StoredValue& value) override {
        death_.step(), values_.write(key, name, value);
    }

  private:
    SettingsValues& values_;
    Death& death_;
};

}  // namespace tessarine::fakes
