#pragma once

#include "platform/Bytes.h"

namespace tavrik {

class DatabaseManager;
class FontReplacer;
class SettingsManager;
struct Mac;

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
    Mac& m_mac;
    SettingsManager& m_settings;
    const DatabaseManager& m_database;
    const FontReplacer& m_fonts;
};

} // namespace tavrik
