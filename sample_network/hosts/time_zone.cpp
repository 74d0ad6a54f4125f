#include "sample_network/hosts/time_zone.h"

namespace tessarine::sample {

// All clocks of Europe change at one o'clock UTC on the last Sundays of March and October.
TimeZone european_zone(const char* name, int bias) {
    const int standard_hour = 1 + bias / 60;
    return {name, bias, -60, {10, 5, 0, standard_hour + 1}, {3, 5, 0, standard_hour}};
}

TimeZone australian_zone(const char* name, int bias) {
    return {name, bias, -60, {4, 1, 0, 3}, {10, 1, 0, 2}};
}

// Hosts tell the bias of a daylight time that never comes as well.
TimeZone zone_without_summer_time(const char* name, int bias) {
    return {name, bias, -60, {}, {}};
}

}  // namespace tessarine::sample
