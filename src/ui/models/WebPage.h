#pragma once

#include <string>

namespace tavrik {

class Notices;

/// Opens a page in the person's browser. Where there is none, the line of the window says the address. Main
/// thread; returns at once.
void openWebPage(const std::string& address, Notices& notices);

} // namespace tavrik
