// Workbooks of a spreadsheet program.
#pragma once

#include <string>
#include <vector>

namespace tessarine {

/// Rows and columns count from 1; the text is in the console's 8-bit code page.
struct SheetCell {
    int row = 1;
    int column = 1;
    std::string text;
    bool bold = false;
};

struct Sheet {
    std::string name;     ///< at most 31 characters
    std::string picture;  ///< the bytes of a bitmap file, for the top left corner; empty for none
    std::vector<SheetCell> cells;
};

class Workbooks {
  public:
    virtual ~Workbooks() = default;

    /// Writes a workbook into a new file in the user's temporary folder, readable by its owner
    /// alone, and returns the path. A text that reads as a number is entered as a number, and all
    /// others as texts, also what looks like a formula. Columns are as wide as their texts. Raises
    /// a RuntimeError when it can't be written, and then leaves no file.
    virtual std::string write(const std::vector<Sheet>& sheets) = 0;
};

}  // namespace tessarine
