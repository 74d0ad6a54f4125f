// The rows of an event table as one HTML page.
#pragma once

#include "core/list/list_control.h"

namespace tessarine {

struct Console;

/// Writes the rows of `SelList`, as they stand on the screen, to tempop.html in the application
/// directory, afresh. Texts of events go into the page as they are. Raises a RuntimeError when that
/// can't be written, for a row with fewer than seven sub-items, of which the line of its
/// fields stands in the page when those are there, and "Overflow" for more than 32,767
/// rows.
void ExportToHtml(Console& console, const ListControl& SelList);

/// Writes the page temp.html, which asks for patience, unless it is there. Nothing calls it. Raises
/// a RuntimeError when that can't be written.
void DummyHtml(Console& console);

/// The toolbar's export button: exports the event table on top and opens the page with its default
/// program; nothing while no event table is on top. Raises the errors of ExportToHtml.
void print_current_page(Console& console);

}  // namespace tessarine
