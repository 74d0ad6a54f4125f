// Full audits of the host list.
#pragma once

namespace tessarine {

struct Console;

/// Audits the selected hosts, one after the other, and marks each row with its result. A failure
/// marks its row and never stops the walk; raises no error.
void fullaudit(Console& console);

/// The same for all hosts of the list.
void runFullauditAllhost(Console& console);

}  // namespace tessarine
