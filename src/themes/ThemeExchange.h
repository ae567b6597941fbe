#pragma once

#include "platform/Bytes.h"
#include "platform/Result.h"
#include "themes/Theme.h"

#include <string>

namespace tavrik {

class ThemeManager;
struct Mac;

/// Takes themes out of the library as files, and into it. Blocks on the disk; off the main thread.
class ThemeExchange {
public:
    ThemeExchange(Mac& mac, ThemeManager& themes);

    /// The theme's file with the icons that lie in the library. What lies among them and is no icon, or none
    /// that would be taken in again, is left out with a line in the log; what cannot be read is an error.
    /// Decodes on all cores.
    Result<Bytes> exportTheme(const Theme& theme) const;

    /// The theme as it was taken in: with the file's id, unless that is taken, and with its name, unless that
    /// is: then a number is added. There whole or not at all, and nothing is written before all of the file is
    /// found to be in order. `fileName` is what the person called it.
    Result<Theme> importTheme(ByteView file, const std::string& fileName);

private:
    Mac& m_mac;
    ThemeManager& m_themes;
};

} // namespace tavrik
