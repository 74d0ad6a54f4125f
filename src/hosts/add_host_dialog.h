// Form6: adding hosts by hand, one after the other.
#pragma once

namespace tessarine {

struct Console;

/// Shows Form6.
void show_add_host(Console& console);

/// The button adds the name in the field, in upper case; an empty field adds nothing.
void add_typed_host(Console& console);

/// Enter in the field adds a row also when it is empty.
void add_typed_host_on_enter(Console& console);

}  // namespace tessarine
