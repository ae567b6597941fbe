#pragma once

#include "platform/Bytes.h"
#include "platform/Path.h"
#include "platform/PropertyList.h"

#include <optional>

namespace tavrik {

class DatabaseManager;
class FontReplacer;
class SettingsManager;
struct Mac;

namespace dock {
class Tile;
}

/// Takes out of a copy of the Dock's preferences everything that the program put into them: a wrapper's tile
/// gets back the saved first bookmark of the original, else a fresh one, with the original's URL and
/// modification date; labels get their plain names. A wrapper's tile whose original cannot be found stays as it
/// is, with a log line. Everything else is written back as it was. Background thread; reads the disk, writes
/// nothing.
class DockCleaning {
public:
    DockCleaning(Mac& mac, SettingsManager& settings, const DatabaseManager& database,
                 const FontReplacer& fonts);

    /// Never fails: on any fault, and when nothing is to be cleaned, the answer is the input, unchanged.
    Bytes clean(Bytes dockPlist);

private:
    /// What the tile of an original has.
    struct Original {
        MacPath path;
        Bytes bookmark;
        std::optional<plist::Value> modified;
    };

    bool pointToOriginal(dock::Tile& tile, const MacPath& wrapper) const;
    std::optional<Original> originalOf(const dock::Tile& tile, const MacPath& wrapper) const;
    std::optional<MacPath> originalPath(const MacPath& wrapper) const;

    Mac& m_mac;
    SettingsManager& m_settings;
    const DatabaseManager& m_database;
    const FontReplacer& m_fonts;
};

} // namespace tavrik
