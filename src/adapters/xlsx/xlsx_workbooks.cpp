#include "adapters/xlsx/xlsx_workbooks.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <map>
#include <memory>
#include <new>
#include <string>

#include "adapters/xlsx/cell_text.h"
#include "adapters/xlsx/new_file.h"
#include "core/code_page.h"
#include "core/runtime_error.h"

namespace tessarine {
namespace {

// What a reader leaves free beside a text, and the widest column that it takes, in pixels.
constexpr int kPadding = 10;
constexpr int kWidestColumn = 1790;

void check(lxw_error error) {
    if (error != LXW_NO_ERROR)
        throw RuntimeError(ErrorNumber::Failed,
                           std::string("The workbook can't be written: ") + lxw_strerror(error));
}

template <class Made>
Made& made(Made* pointer) {
    if (pointer == nullptr) throw std::bad_alloc();
    return *pointer;
}

// One workbook of the library, which keeps it in memory until it is closed.
class LibraryWorkbook {
  public:
    explicit LibraryWorkbook(const NewFile& file) : folder_(file.folder()) {
        lxw_workbook_options options{};
        options.tmpdir = folder_.data();
        workbook_.reset(&made(workbook_new_opt(file.path().c_str(), &options)));
        bold_ = &made(workbook_add_format(workbook_.get()));
        format_set_bold(bold_);
    }

    void add(const Sheet& sheet) {
        const std::string name = to_utf8(sheet.name);
        check(workbook_validate_sheet_name(workbook_.get(), name.c_str()));
        lxw_worksheet& worksheet = made(workbook_add_worksheet(workbook_.get(), name.c_str()));
        worksheet_set_landscape(&worksheet);  // so that wide tables fit a printed page
        std::map<int, int> widths;
        for (const SheetCell& cell : sheet.cells) {
            add(worksheet, cell);
            int& width = widths[cell.column];
            width = std::max(width, cell_width(cell.text));
        }
        set_widths(worksheet, widths);
        if (!sheet.picture.empty()) add_picture(worksheet, sheet.picture);
    }

    // All is written here, and the library's memory freed, whether it goes well or not.
    void close() {
        errno = 0;
        const lxw_error error = workbook_close(workbook_.release());
        if (error != LXW_NO_ERROR && errno != 0) raise_workbook_error(errno);
        check(error);
    }

  private:
    struct Free {
        void operator()(lxw_workbook* workbook) const { lxw_workbook_free(workbook); }
    };

    void add(lxw_worksheet& worksheet, const SheetCell& cell) {
        const auto row = static_cast<lxw_row_t>(cell.row - 1);
        const auto column = static_cast<lxw_col_t>(cell.column - 1);
        lxw_format* format = cell.bold ? bold_ : nullptr;
        if (const auto number = number_in(cell.text))
            check(worksheet_write_number(&worksheet, row, column, *number, format));
        else
            check(worksheet_write_string(&worksheet, row, column, cell_text(cell.text).c_str(),
                                         format));
    }

    static void set_widths(lxw_worksheet& worksheet, const std::map<int, int>& widths) {
        for (const auto& [number, width] : widths) {
            const auto column = static_cast<lxw_col_t>(number - 1);
            const auto pixels =
                static_cast<std::uint32_t>(std::min(width + kPadding, kWidestColumn));
            check(worksheet_set_column_pixels(&worksheet, column, column, pixels, nullptr));
        }
    }

    static void add_picture(lxw_worksheet& worksheet, const std::string& picture) {
        const auto* bytes = reinterpret_cast<const unsigned char*>(picture.data());
        check(worksheet_insert_image_buffer(&worksheet, 0, 0, bytes, picture.size()));
    }

    std::string folder_;
    std::unique_ptr<lxw_workbook, Free> workbook_;
    lxw_format* bold_ = nullptr;
};

// Bytes that the file and the library's temporary files take, roughly and on the large side.
std::uintmax_t room_for(const std::vector<Sheet>& sheets) {
    constexpr std::uintmax_t kFrame = std::uintmax_t{64} << 10;
    constexpr std::uintmax_t kCell = 64;
    std::uintmax_t bytes = kFrame;
    for (const Sheet& sheet : sheets) {
        bytes += 2 * sheet.picture.size();
        for (const SheetCell& cell : sheet.cells) bytes += kCell + 2 * cell.text.size();
    }
    return bytes;
}

}  // namespace

std::string XlsxWorkbooks::write(const std::vector<Sheet>& sheets) {
    NewFile file(".xlsx");
    // The library doesn't notice when its temporary files are cut short.
    file.check_room(room_for(sheets));
    LibraryWorkbook workbook(file);
    for (const Sheet& sheet : sheets) workbook.add(sheet);
    workbook.close();
    file.keep();
    return from_utf8(file.path());
}

}  // namespace tessarine
