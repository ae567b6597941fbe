#pragma once

#include "model/RowID.h"
#include "platform/Bytes.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>

namespace tavrik {

class Bookmarks;
class SettingsManager;

namespace sqlite {
class Connection;
}

/// Takes the wrappers out of a copy of the Launchpad database: each original gets back the place that its
/// wrapper holds, and the wrappers' rows go. No trigger may fire meanwhile, and no other row moves.
///
/// What the settings record of rows is trusted only where the rows still are the application's and its
/// wrapper's: a rebuilt database gives numbers out again. One thread; within the caller's transaction, which is
/// of no use once an operation has failed.
class WrapperRowsCleaning {
public:
    WrapperRowsCleaning(sqlite::Connection& database, const Bookmarks& bookmarks, SettingsManager& settings);

    /// Looks for the wrappers' rows. To be called first.
    [[nodiscard]] bool find();

    /// Puts originals back whose exchange is recorded, finished or not.
    [[nodiscard]] bool swapBack();

    /// Removes the rows of wrappers but of those of hidden-flag applications. How many.
    std::optional<std::size_t> removeWrappers();

    /// Removes those too, each by the same four statements. How many.
    std::optional<std::size_t> removeHiddenFlagWrappers();

private:
    enum class Lead { toWrapper, elsewhere, nowhere };

    struct AppRow {
        std::string title;
        std::string bundleID;
        Bytes bookmark;
    };

    /// A row whose bookmark has the wrapper folder's name in it.
    struct Suspect {
        std::string bundleID;
        Lead lead;
    };

    struct Pair {
        RowID original;
        RowID wrapper;
    };

    Lead leadOf(ByteView bookmark) const;
    std::optional<AppRow> appRow(RowID row);
    bool isPair(const std::string& bundleID, const Pair& rows);
    bool copyPlacement(RowID from, RowID to);
    bool execute(const char* sql, RowID row);
    bool removeDetails(RowID wrapper);

    sqlite::Connection& m_database;
    const Bookmarks& m_bookmarks;
    SettingsManager& m_settings;
    std::map<RowID, Suspect> m_suspects;
    bool m_isReadable = true;                     ///< a row that was not found is really not there
    std::set<RowID> m_wrappers;                   ///< whose rows go
    std::map<std::string, Pair> m_hiddenFlagApps; ///< by bundle identifier
};

} // namespace tavrik
