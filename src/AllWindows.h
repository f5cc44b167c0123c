#pragma once

namespace karvenis {

class Forms;
struct Surroundings;

/// Makes every window of the program known to `forms` under its name. The first one is the main
/// window. `around` must outlive them all.
void addWindows(Forms& forms, Surroundings& around);

}  // namespace karvenis
