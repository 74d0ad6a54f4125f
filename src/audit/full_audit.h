// Full audits of the host list.
#pragma once

namespace tessarine {

struct Console;

/// Audits the selected hosts, one after the other, and marks each row with its result. A failure
/// marks its row and never stops the walk. Raises "Overflow" for a
/// list of more than 32,767 hosts.
void fullaudit(Console& console);

/// The same for all hosts of the list, with the same error.
void runFullauditAllhost(Console& console);

}  // namespace tessarine
