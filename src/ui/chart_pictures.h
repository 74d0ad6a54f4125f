// Pictures of charts for the clipboard.
#pragma once

#include "platform/chart_picture.h"

namespace tessarine {

class QtChartPicture final : public ChartPicture {
  public:
    void copy_to_clipboard(const Chart& chart) override;
};

}  // namespace tessarine
