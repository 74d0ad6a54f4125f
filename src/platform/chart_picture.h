// Pictures of charts.
#pragma once

namespace tessarine {

struct Chart;

class ChartPicture {
  public:
    virtual ~ChartPicture() = default;

    /// Puts a picture of the chart on the clipboard, as bars or as a pie, on a light ground. It
    /// fits the eleven rows that a sheet of a workbook leaves for it.
    virtual void copy_to_clipboard(const Chart& chart) = 0;
};

}  // namespace tessarine
