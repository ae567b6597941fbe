#pragma once

#include "platform/Date.h"

#include <QString>

#include <cstdint>

namespace tavrik {

/// "180 KB", "1.2 MB", in the person's language; thousands, rounded up to whole kilobytes.
QString sizeText(std::uint64_t bytes);

/// "Today at 17:13", "Yesterday at 9:26", else the day and the time, of this machine.
QString momentText(Date moment, Date now);

} // namespace tavrik
