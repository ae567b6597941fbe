#pragma once

#include "platform/Bytes.h"
#include "platform/Path.h"
#include "platform/Result.h"

namespace tavrik {

namespace sqlite {
class Connection;
}

class FontReplacer;
class SettingsManager;
struct Mac;

/// Takes out of a copy of the Launchpad database everything that the program put into it: titles get their
/// plain names, originals the places that their wrappers hold, and the wrappers' rows go. Where each row
/// belongs is known from the mappings, the records of unfinished exchanges and those of hidden-flag
/// applications; a record whose rows are no longer what it says changes nothing. No other row moves: the
/// database's own triggers are put aside for the time of it.
///
/// Works on a temporary file, since SQLite does, readable by its owner alone and gone on every path out; one
/// that a kill left is removed by the next cleaning and by `removeLeftovers`. Everything is one transaction.
/// Background thread; blocks on the disk; one at a time.
class LaunchpadCleaning {
public:
    LaunchpadCleaning(Mac& mac, SettingsManager& settings, const FontReplacer& fonts);

    /// Never fails: on any fault the answer is the input, unchanged, and log lines say why.
    Bytes clean(Bytes database);

    /// Cleans a copy in memory, to be looked at: makes no file, so that it may run beside another program's
    /// cleaning. False on any fault, the copy as it was.
    [[nodiscard]] bool cleanInPlace(sqlite::Connection& copy);

    /// Removes the temporary file and what SQLite may have left beside it; fine when there is none.
    void removeLeftovers();

    /// "launchpad_temp.db" in the user's temporary folder.
    const MacPath& temporaryFile() const { return m_temporaryFile; }

private:
    Mac& m_mac;
    SettingsManager& m_settings;
    const FontReplacer& m_fonts;
    const MacPath m_temporaryFile;
};

} // namespace tavrik
