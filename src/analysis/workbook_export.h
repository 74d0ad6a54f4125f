// The tables and the charts of the analysis, and the event tables, as workbooks.
#pragma once

#include "core/list/list_control.h"

namespace tessarine {

struct Console;

/// The button of the export: shows the analysis as it stands in a new workbook, a sheet a log, with
/// the chart's picture, the table and the counts by type. Each picture passes over the clipboard
/// and through Chart.bmp in the application directory. Raises a RuntimeError when the clipboard has
/// no picture, that file or the workbook can't be written, or a table has more than 32,767 rows.
void AnalysisExport(Console& console);

/// Shows three lists, in the console's own use the event tables of System, Application and
/// Security, in a new workbook; an empty `LV1` gets a line in the status bar instead. Nothing calls
/// it. Raises a RuntimeError when the workbook can't be written, for a row with fewer sub-items
/// than its list has columns for, and "Overflow" for more than 32,767 rows.
void ExpoXL(Console& console, const ListControl& LV1, const ListControl& LV2,
            const ListControl& LV3);

}  // namespace tessarine
