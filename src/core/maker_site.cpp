#include "core/maker_site.h"

namespace tessarine {

std::string_view maker_site() {
    return TESSARINE_MAKER_SITE;
}

std::string maker_address(std::string_view path) {
    std::string address = "http://";
    return address.append(maker_site()).append(path);
}

}  // namespace tessarine
