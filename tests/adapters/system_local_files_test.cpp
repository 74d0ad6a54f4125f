// What only the files of a disk can show: rights, devices, full disks, names of the system.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <cstdint>

#include "adapters/system/large_page_memory.h"
#include "adapters/system/local_directory_listing.h"
#include "adapters/system/local_file.h"
#include "adapters/system/local_files.h"
#include "adapters/system_file_size_limit.h"
#include "adapters/system_temporary_folder.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

using std::filesystem::perms;
using testing::ElementsAre;
using testing::FieldsAre;

// The words of the error that a statement raises.
template <class Statement>
std::string error_of(Statement&& statement) {
    try {
        statement();
    } catch (const RuntimeError& error) {
        return error.description();
    }
    return "no error";
}

TEST(LocalFiles, FilesAndFoldersAreTheirOwnersWhateverTheUmask) {
    constexpr perms kReadWrite = perms::owner_read | perms::owner_write;
    for (const mode_t mask : {0, 022, 0777}) {
        const TemporaryFolder folder;
        LocalFiles files;
        const mode_t before = ::umask(mask);
        files.create_folder(folder.path_of("folder"));
        files.open(folder.path_of("a"), OpenFor::Writing)->write("text");
        files.open(folder.path_of("b"), OpenFor::Appending)->close();
        files.copy(folder.path_of("a"), folder.path_of("c"));
        ::umask(before);
        EXPECT_EQ(folder.rights_of("folder"), perms::owner_all);
        for (const char* name : {"a", "b", "c"}) EXPECT_EQ(folder.rights_of(name), kReadWrite);
    }
}

// Each of these would keep a plain open waiting, or take what is written.
TEST(LocalFiles, OnlyPlainFilesAreOpened) {
    const TemporaryFolder folder;
    LocalFiles files;
    ASSERT_EQ(::mkfifo(folder.path_of("pipe").c_str(), 0600), 0);
    const std::string no_file = "Permission denied: it is no plain file";
    for (const OpenFor purpose : {OpenFor::Reading, OpenFor::Writing, OpenFor::Appending}) {
        EXPECT_EQ(error_of([&] { files.open(folder.path_of("pipe"), purpose); }), no_file);
        EXPECT_EQ(error_of([&] { files.open("/dev/null", purpose); }), no_file);
        EXPECT_EQ(error_of([&] { files.open(folder.path(), purpose); }),
                  "Permission denied: it is a folder");
    }
    EXPECT_EQ(error_of([&] { files.copy(folder.path_of("pipe"), folder.path_of("a")); }), no_file);
}

TEST(LocalFiles, NamesThatNoFileCanHaveAreRefused) {
    LocalFiles files;
    const std::string with_zero("/tmp\0/a", 7);
    EXPECT_FALSE(files.file_exists(with_zero));
    EXPECT_FALSE(files.folder_exists(with_zero));
    EXPECT_EQ(error_of([&] { files.open(with_zero, OpenFor::Writing); }),
              "Bad file name: it holds a zero character");
    EXPECT_EQ(error_of([&] { files.open("/tmp/" + std::string(300, 'a'), OpenFor::Writing); }),
              "Bad file name: it is too long");
    EXPECT_EQ(error_of([&] { files.open("", OpenFor::Reading); }), "File not found");
}

// What can't be found out is no "missing", which would make or empty a file.
TEST(LocalFiles, WhatCantBeFoundOutIsAnError) {
    const TemporaryFolder folder;
    LocalFiles files;
    std::filesystem::create_symlink("loop", folder.path_of("loop"));
    const std::string in_loop = folder.path_of("loop/a.log");
    for (const std::string& path : {folder.path_of("loop"), in_loop}) {
        EXPECT_NE(error_of([&] { files.file_exists(path); }), "no error");
        EXPECT_NE(error_of([&] { files.folder_exists(path); }), "no error");
    }
    EXPECT_NE(error_of([&] { files.present_name(folder.path_of("loop"), "a.log"); }), "no error");
    EXPECT_EQ(files.create(folder.path_of("loop")), nullptr);
}

// The system tells no size of these, and some have no end.
TEST(LocalFiles, AFileWithoutASizeHasNoBytes) {
    const TemporaryFolder folder;
    std::filesystem::create_symlink("/proc/self/pagemap", folder.path_of("a.log"));
    char byte = 0;
    EXPECT_EQ(LocalFiles().open(folder.path_of("a.log"), OpenFor::Reading)->read(&byte, 1), 0u);
}

TEST(LocalFiles, AFullDiskIsReportedAtFlushAndAtClose) {
    LocalFile file(::open("/dev/full", O_WRONLY | O_CLOEXEC));
    file.write("text");
    EXPECT_EQ(error_of([&] { file.flush(); }), "Disk full");
    EXPECT_EQ(error_of([&] { file.write(std::string(300000, 'x')); }), "Disk full");
    EXPECT_EQ(error_of([&] { file.close(); }), "Disk full");
    EXPECT_EQ(error_of([&] { file.close(); }), "no error");
    EXPECT_EQ(error_of([&] { file.flush(); }), "Bad file name or number");
}

TEST(LocalFiles, ACopyThatFailsLeavesTheTargetAndNoOtherFile) {
    const TemporaryFolder folder;
    LocalFiles files;
    folder.put("from.log", std::string(1000000, 'x'));
    folder.put("to.log", "old");
    {
        const FileSizeLimit limit(400000);
        EXPECT_EQ(
            error_of([&] { files.copy(folder.path_of("from.log"), folder.path_of("to.log")); }),
            "Disk full: the file is too large");
    }
    EXPECT_EQ(folder.bytes_of("to.log"), "old");
    EXPECT_EQ(LocalDirectoryListing().files_ending_in(folder.path(), "").size(), 2u);
}

TEST(LocalFiles, ALineThatDoesNotFitLeavesNothing) {
    const TemporaryFolder folder;
    const auto file = open_local_file(folder.path_of("a.log"), OpenFor::Appending);
    file->write_whole("first\r\n");
    {
        const FileSizeLimit limit(10);
        EXPECT_NE(error_of([&] { file->write_whole("second\r\n"); }), "no error");
    }
    file->write_whole("third\r\n");
    file->close();
    EXPECT_EQ(folder.bytes_of("a.log"), "first\r\nthird\r\n");
}

// What was taken before the failure is there once, and in order.
TEST(LocalFiles, AWriteThatFailsCanBeTriedAgain) {
    const TemporaryFolder folder;
    const auto file = open_local_file(folder.path_of("a.log"), OpenFor::Writing);
    {
        const FileSizeLimit limit(100000);
        file->write(std::string(200000, 'a'));
        EXPECT_NE(error_of([&] { file->flush(); }), "no error");
    }
    file->write("b");
    file->close();
    EXPECT_TRUE(folder.bytes_of("a.log") == std::string(200000, 'a') + "b");
}

TEST(LocalFiles, NamesAreUtf8OutsideAndOnesThatThePageLacksAreLeftOut) {
    const TemporaryFolder folder;
    LocalFiles().open(folder.path_of("Stra\xDF"
                                     "e_system.log"),
                      OpenFor::Writing);
    EXPECT_TRUE(std::filesystem::exists(folder.path_of("Stra\u00DFe_system.log")));
    folder.put("\u0416_system.log", "cyrillic");
    folder.put("\xFF_system.log", "no UTF-8");
    EXPECT_THAT(LocalDirectoryListing().files_ending_in(folder.path(), "_system.log"),
                ElementsAre(FieldsAre("Stra\xDF"
                                      "e_system.log",
                                      0u)));
}

TEST(LargePageMemory, LargeBlocksStandOnLargePages) {
    LargePageMemory memory;
    constexpr std::size_t kLargePage = std::size_t{2} << 20;
    for (const std::size_t size : {std::size_t{64}, kLargePage, 3 * kLargePage + 5}) {
        auto* start = static_cast<char*>(memory.allocate(size, 16));
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(start) % (size < kLargePage ? 16 : kLargePage),
                  0u);
        start[0] = start[size - 1] = 'x';
        memory.deallocate(start, size, 16);
    }
}

}  // namespace
}  // namespace tessarine
