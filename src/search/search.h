// The search: one text, looked for in the stored logs of all hosts.
#pragma once

namespace tessarine {

struct Console;

/// Fills the three event tables with the records that hold the text of TxtSearch, of all hosts, in
/// the logs whose boxes are ticked. A record is taken as its whole line, without regard to case,
/// and the type boxes and the ignore list play no part. Errors are raised up to the first hit, such
/// as the one of a store without files, and ignored from there to the end.
void Search(Console& console);

/// The button "Search": a search, which then joins the history. Raises the errors of the search.
void search_and_remember(Console& console);

/// The button "Clear": empties the history and the text to search for.
void clear_search_history(Console& console);

}  // namespace tessarine
