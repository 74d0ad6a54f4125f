// What the machine can do at best: the figures that a measurement is to be put beside.
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <iostream>
#include <memory>
#include <system_error>
#include <vector>

#include "bench/arguments.h"
#include "bench/commands.h"

namespace tessarine::bench {
namespace {

constexpr std::size_t kBlock = std::size_t{256} << 10;
constexpr std::size_t kLine = 532;  // bytes of a usual record, its line end included

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using OpenFile = std::unique_ptr<std::FILE, CloseFile>;

OpenFile open(const std::string& path, const char* mode) {
    OpenFile file(std::fopen(path.c_str(), mode));
    if (file == nullptr) throw std::system_error(errno, std::generic_category(), path);
    return file;
}

// Shows every byte of the file to `see`, through one buffer of a block.
template <class See>
void read_blocks(const std::string& path, std::vector<char>& block, See&& see) {
    const OpenFile file = open(path, "rb");
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    while (const std::size_t size = std::fread(block.data(), 1, block.size(), file.get()))
        see(block.data(), size);
}

std::size_t count_bytes(const std::string& path) {
    std::vector<char> block(kBlock);
    std::size_t bytes = 0;
    read_blocks(path, block, [&](const char*, std::size_t size) { bytes += size; });
    return bytes;
}

std::size_t count_lines(const std::string& path) {
    std::vector<char> block(kBlock);
    std::size_t lines = 0;
    read_blocks(path, block, [&](const char* at, std::size_t size) {
        const char* const end = at + size;
        while ((at = static_cast<const char*>(
                    std::memchr(at, '\n', static_cast<std::size_t>(end - at)))) != nullptr) {
            ++lines;
            ++at;
        }
    });
    return lines;
}

// The whole file in memory that nothing has touched before.
std::size_t slurp(const std::string& path) {
    const OpenFile file = open(path, "rb");
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    std::fseek(file.get(), 0, SEEK_END);
    const auto size = static_cast<std::size_t>(std::max(0L, std::ftell(file.get())));
    std::rewind(file.get());
    const auto bytes = std::make_unique_for_overwrite<char[]>(size);
    return std::fread(bytes.get(), 1, size, file.get());
}

std::size_t write_lines(const std::string& path, int lines) {
    std::vector<char> buffer(kBlock);  // the library takes the size from a buffer alone
    const OpenFile file = open(path, "wb");
    std::setvbuf(file.get(), buffer.data(), _IOFBF, buffer.size());
    const std::string line = std::string(kLine - 2, 'x') + "\r\n";
    std::size_t written = 0;
    for (int i = 0; i < lines; ++i) written += std::fwrite(line.data(), 1, kLine, file.get());
    if (std::fflush(file.get()) != 0) throw std::system_error(errno, std::generic_category(), path);
    return written;
}

}  // namespace

void limits(std::span<char* const> words) {
    const Arguments arguments(words, {}, 2, words.size());
    const std::string& kind = arguments.plain().front();
    const std::string& path = arguments.plain()[1];
    if (kind == "fwrite") {
        if (words.size() != 3) throw UsageError("fwrite wants a file and a number of lines");
        std::cout << write_lines(path, number_of(words[2], "fwrite")) << "\n";
        return;
    }
    const auto job = kind == "read"    ? count_bytes
                     : kind == "lines" ? count_lines
                     : kind == "slurp" ? slurp
                                       : nullptr;
    if (job == nullptr) throw UsageError("there is no limit " + kind);
    std::size_t total = 0;
    for (std::size_t i = 1; i < arguments.plain().size(); ++i) total += job(arguments.plain()[i]);
    std::cout << total << "\n";
}

}  // namespace tessarine::bench
