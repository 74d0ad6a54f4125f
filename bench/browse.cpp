// Asks the network for its groups, or for the servers of one, as the console's window does.
#include <iostream>
#include <stdexcept>

#include "adapters/browse/network_browse_list.h"
#include "bench/arguments.h"
#include "bench/commands.h"
#include "core/code_page.h"

namespace tessarine::bench {

void browse(std::span<char* const> words) {
    const Arguments arguments(words, {}, 0, 1);
    NetworkBrowseList network({});
    const BrowseAnswer answer = arguments.plain().empty()
                                    ? network.groups()
                                    : network.servers(from_utf8(arguments.plain()[0]));
    if (answer.error != 0)
        throw std::runtime_error(to_utf8(answer.words) + " [" + std::to_string(answer.error) + "]");
    for (const ServerInfo& entry : answer.entries)
        std::cout << to_utf8(entry.name) << '\t' << to_utf8(entry.comment) << '\n';
}

}  // namespace tessarine::bench
