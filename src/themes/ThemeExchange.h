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

    Result<Bytes> exportTheme(const Theme& theme) const;

    /// The theme as it was taken in: with the file's id, unless that is taken, and with its name, unless that
    /// is: then a number is added. There whole or not at all.
    Result<Theme> importTheme(ByteView file, const std::string& fileName);

private:
    Mac& m_mac;
    ThemeManager& m_themes;
};

} // namespace tavrik
