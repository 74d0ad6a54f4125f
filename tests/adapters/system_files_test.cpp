// What every kind of files must keep to: the ones on the disk, and the ones in memory that the
// tests of the logic rely on.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

#include <functional>
#include <type_traits>

#include "adapters/system/local_directory_listing.h"
#include "adapters/system/local_files.h"
#include "adapters/system_temporary_folder.h"
#include "fakes/memory_files.h"

namespace tessarine {
namespace {

using testing::FieldsAre;
using testing::UnorderedElementsAre;

struct OnDisk {
    TemporaryFolder folder;
    LocalFiles files;
    LocalDirectoryListing listing;
    std::string root = folder.path();

    void make_read_only(const std::string& name) {
        std::filesystem::permissions(folder.path_of(name), std::filesystem::perms::owner_read);
    }
    void open_to_others(const std::string& name) {
        std::filesystem::permissions(folder.path_of(name), std::filesystem::perms::all);
    }
};

struct InMemory {
    InMemory() { files.make_folders(root); }
    fakes::MemoryFiles files;
    fakes::MemoryFiles& listing = files;
    std::string root = "/store";

    void make_read_only(const std::string& name) { files.set_read_only(root + "/" + name); }
    void open_to_others(const std::string& name) { files.open_to_others(root + "/" + name); }
};

template <class Place>
class FilesContract : public testing::Test {
  protected:
    std::string path(const std::string& name) { return place_.root + "\\" + name; }

    void write(const std::string& name, const std::string& bytes,
               OpenFor purpose = OpenFor::Writing) {
        const auto file = place_.files.open(path(name), purpose);
        file->write(bytes);
        file->close();
    }

    // Reads in pieces of `size`.
    std::string read(const std::string& name, std::size_t size = 1000) {
        const auto file = place_.files.open(path(name), OpenFor::Reading);
        std::string bytes;
        std::string piece(size, '\0');
        while (const std::size_t count = file->read(piece.data(), piece.size()))
            bytes.append(piece, 0, count);
        file->close();
        return bytes;
    }

    static int error_of(const std::function<void()>& statement) {
        try {
            statement();
        } catch (const RuntimeError& error) {
            return static_cast<int>(error.number());
        }
        return 0;
    }

    Place place_;
};

using Places = testing::Types<OnDisk, InMemory>;
TYPED_TEST_SUITE(FilesContract, Places);

TYPED_TEST(FilesContract, BytesComeBackAsTheyWereWritten) {
    std::string all;
    for (int i = 0; i < 256; ++i) all += static_cast<char>(i);
    this->write("a.log", all);
    EXPECT_EQ(this->read("a.log", 7), all);
    this->write("a.log", all, OpenFor::Appending);
    EXPECT_EQ(this->read("a.log"), all + "\r\n" + all) << "the last line was cut off";
    this->write("a.log", "1\r\n");
    this->write("a.log", "2\r", OpenFor::Appending);
    this->write("a.log", "3\n", OpenFor::Appending);
    this->write("a.log", "4", OpenFor::Appending);
    EXPECT_EQ(this->read("a.log"), "1\r\n2\r\n3\n4");
    this->write("a.log", "short");
    EXPECT_EQ(this->read("a.log"), "short");
    this->write("b.log", "new", OpenFor::Appending);
    EXPECT_EQ(this->read("b.log"), "new");
}

TYPED_TEST(FilesContract, WritesOfEverySizeKeepTheirOrder) {
    const auto file = this->place_.files.open(this->path("a.log"), OpenFor::Writing);
    std::string expected;
    for (const std::size_t size : {1, 262143, 1, 1, 300000, 600000, 0, 262144, 5}) {
        const std::string piece(size, static_cast<char>('a' + expected.size() % 23));
        file->write(piece);
        expected += piece;
    }
    file->flush();
    EXPECT_TRUE(this->read("a.log", 65536) == expected);
    file->write("end");
    file->close();
    file->close();
    EXPECT_TRUE(this->read("a.log", 65536) == expected + "end");
}

TYPED_TEST(FilesContract, WhatIsNotThereRaisesItsError) {
    Files& files = this->place_.files;
    const std::string missing = this->path("missing");
    const std::string under_missing = this->path("missing\\a.log");
    const std::string folder = this->path("folder");
    files.create_folder(folder);
    this->write("a.log", "a");
    const auto open = [&](const std::string& path, OpenFor purpose) {
        return this->error_of([&] { files.open(path, purpose); });
    };
    EXPECT_EQ(open(missing, OpenFor::Reading), 53);
    EXPECT_FALSE(files.file_exists(missing));
    EXPECT_EQ(open(under_missing, OpenFor::Writing), 76);
    EXPECT_EQ(open(under_missing, OpenFor::Appending), 76);
    EXPECT_NE(open(folder, OpenFor::Reading), 0);
    EXPECT_NE(open(folder, OpenFor::Appending), 0);
    EXPECT_EQ(this->error_of([&] { files.create_folder(under_missing); }), 76);
    EXPECT_EQ(this->error_of([&] { files.create_folder(folder); }), 58);
    EXPECT_EQ(this->error_of([&] { files.remove(missing); }), 53);
    EXPECT_EQ(this->error_of([&] { files.copy(missing, this->path("b.log")); }), 53);
    EXPECT_EQ(this->error_of([&] { files.copy(this->path("a.log"), under_missing); }), 76);
    EXPECT_EQ(this->error_of([&] { this->place_.listing.files_ending_in(missing, ".log"); }), 76);
}

TYPED_TEST(FilesContract, EitherSeparatorAndUmlautsLeadToTheSameFile) {
    Files& files = this->place_.files;
    files.create_folder(this->place_.root + "/Data");
    this->write("Data\\B\xFCro_system.log", "text");
    EXPECT_TRUE(files.file_exists(this->place_.root + "/Data//B\xFCro_system.log"));
    EXPECT_TRUE(files.folder_exists(this->path("Data\\")));
    EXPECT_FALSE(files.file_exists(this->path("Data")));
    EXPECT_FALSE(files.folder_exists(this->path("Data\\B\xFCro_system.log")));
    EXPECT_THAT(this->place_.listing.files_ending_in(this->path("Data"), ".log"),
                UnorderedElementsAre(FieldsAre("B\xFCro_system.log", 4u)));
}

TYPED_TEST(FilesContract, ANameIsFoundInAnyCaseAndTheExactOneFirst) {
    Files& files = this->place_.files;
    const std::string folder = this->path("DATA");
    files.create_folder(folder);
    EXPECT_EQ(files.present_name(this->place_.root, "Data"), "DATA");
    EXPECT_EQ(files.present_name(folder, "b\xFCro_system.log"), "b\xFCro_system.log");
    this->write("DATA\\B\xDCRO_System.LOG", "text");
    EXPECT_EQ(files.present_name(folder, "b\xFCro_system.log"), "B\xDCRO_System.LOG");
    EXPECT_EQ(files.present_name(folder, "ro_system.log"), "ro_system.log");
    EXPECT_EQ(files.present_name(this->path("missing"), "a.log"), "a.log");
    this->write("DATA\\B\xDCro_system.log", "other");
    EXPECT_EQ(files.present_name(folder, "b\xFCro_system.log"), "B\xDCRO_System.LOG");
    this->write("DATA\\b\xFCro_system.log", "exact");
    EXPECT_EQ(files.present_name(folder, "b\xFCro_system.log"), "b\xFCro_system.log");
    files.remove(folder + "\\B\xDCRO_System.LOG");
    files.remove(folder + "\\b\xFCro_system.log");
    EXPECT_EQ(files.present_name(folder, "b\xFCro_system.log"), "B\xDCro_system.log");
}

TYPED_TEST(FilesContract, AListingHasThePlainFilesOfTheFolderByTheirEnding) {
    this->place_.files.create_folder(this->path("folder.log"));
    this->write("a_system.log", "12345");
    this->write("B_SYSTEM.LOG", "");
    this->write("c_security.log", "1");
    this->write("folder.log\\d_system.log", "1");
    this->write(".log", "1");
    EXPECT_THAT(this->place_.listing.files_ending_in(this->place_.root, "system.log"),
                UnorderedElementsAre(FieldsAre("a_system.log", 5u), FieldsAre("B_SYSTEM.LOG", 0u)));
    EXPECT_EQ(this->place_.listing.files_ending_in(this->place_.root, ".log").size(), 4u);
}

TYPED_TEST(FilesContract, ACopyReplacesAndARemovalTakesReadOnlyFilesToo) {
    Files& files = this->place_.files;
    const std::string bytes(700000, 'x');
    this->write("from.log", bytes);
    this->write("to.log", "old");
    files.copy(this->path("from.log"), this->path("to.log"));
    EXPECT_TRUE(this->read("to.log") == bytes);
    EXPECT_TRUE(this->read("from.log") == bytes);
    EXPECT_EQ(this->place_.listing.files_ending_in(this->place_.root, "").size(), 2u);
    this->place_.make_read_only("to.log");
    files.remove(this->path("to.log"));
    EXPECT_FALSE(files.file_exists(this->path("to.log")));
}

TYPED_TEST(FilesContract, AReplacementIsThereAtOnceAndANewFileNeverInPlaceOfAnother) {
    Files& files = this->place_.files;
    files.replace(this->path("a.log"), "first");
    files.replace(this->path("a.log"), "second");
    EXPECT_EQ(this->read("a.log"), "second");
    this->place_.make_read_only("a.log");
    const bool is_root = ::geteuid() == 0 && std::is_same_v<TypeParam, OnDisk>;
    const int error = this->error_of([&] { files.replace(this->path("a.log"), "third"); });
    EXPECT_EQ(error, is_root ? 0 : 70);
    EXPECT_EQ(this->error_of([&] { files.replace(this->path("missing\\a.log"), ""); }), 76);
    EXPECT_EQ(files.create(this->path("a.log")), nullptr);
    files.create_folder(this->path("folder"));
    EXPECT_EQ(files.create(this->path("folder")), nullptr);
    EXPECT_EQ(this->error_of([&] { files.create(this->path("missing\\a.log")); }), 76);
    files.create(this->path("b.log"))->write("new");
    EXPECT_EQ(this->read("b.log"), "new");
    EXPECT_EQ(this->place_.listing.files_ending_in(this->place_.root, "").size(), 2u);
}

TYPED_TEST(FilesContract, ALockKeepsAllOthersOut) {
    Files& files = this->place_.files;
    this->write("a.log", "");
    this->write("b.log", "");
    const std::chrono::milliseconds at_once(0);
    auto lock = files.lock(this->path("a.log"), at_once);
    ASSERT_NE(lock, nullptr);
    EXPECT_EQ(files.lock(this->path("a.log"), at_once), nullptr);
    EXPECT_NE(files.lock(this->path("b.log"), at_once), nullptr);
    EXPECT_NE(files.lock(this->place_.root, at_once), nullptr);
    lock.reset();
    EXPECT_NE(files.lock(this->path("a.log"), at_once), nullptr);
    EXPECT_EQ(this->error_of([&] { files.lock(this->path("missing"), at_once); }), 53);
}

TYPED_TEST(FilesContract, ALineThatIsWrittenWholeStandsBehindAllOthers) {
    const auto file = this->place_.files.open(this->path("a.log"), OpenFor::Appending);
    file->reserve(100);
    file->write("1\r\n");
    file->write_whole("2\r\n");
    EXPECT_EQ(this->read("a.log"), "1\r\n2\r\n");
    file->write("3");
    file->sync();
    EXPECT_EQ(this->read("a.log"), "1\r\n2\r\n3");
}

TYPED_TEST(FilesContract, AFolderIsOnesOwn) {
    this->place_.files.create_folder(this->path("folder"));
    this->place_.files.demand_own_folder(this->path("folder"));
    this->place_.open_to_others("folder");
    const auto demand = [this](const char* name) {
        return this->error_of([&] { this->place_.files.demand_own_folder(this->path(name)); });
    };
    EXPECT_EQ(demand("folder"), 70);
    EXPECT_EQ(demand("missing"), 76);
}

TYPED_TEST(FilesContract, AFileThatIsForgottenKeepsWhatWasWritten) {
    this->place_.files.open(this->path("a.log"), OpenFor::Writing)->write("text");
    EXPECT_EQ(this->read("a.log"), "text");
}

}  // namespace
}  // namespace tessarine
