// Workbooks by libxlsxwriter.
#pragma once

#include "platform/workbooks.h"

namespace tessarine {

class XlsxWorkbooks final : public Workbooks {
  public:
    std::string write(const std::vector<Sheet>& sheets) override;
};

}  // namespace tessarine
