#pragma once

#include "platform/Bytes.h"
#include "platform/Date.h"
#include "platform/Path.h"
#include "platform/Result.h"
#include "platform/Sqlite.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tavrik::practice {

/// The row of a Launchpad item that holds others, or of one that is held.
enum class LaunchpadRow : std::int64_t {};

inline constexpr LaunchpadRow kLaunchpadRoot{1};
/// The page for what Launchpad has not placed.
inline constexpr LaunchpadRow kHoldingPage{2};
/// The page for what Launchpad never shows.
inline constexpr LaunchpadRow kUnshownPage{6};

inline constexpr std::int32_t kLaunchpadHidden = 128;

/// One application's row.
struct LaunchpadApp {
    std::string title;
    std::string bundleID;
    std::optional<Bytes> bookmark;
    Date modified;        ///< the bundle's
    std::string category; ///< "public.app-category.utilities"; empty for none
    std::optional<std::int32_t> flags = 0;
    std::optional<std::string> storeID = std::nullopt;
};

/// One folder that the Dock watches for applications.
struct LaunchpadSource {
    Bytes bookmark;
    std::int64_t lastEvent = 0;
};

/// Writes a new Launchpad database: real schema, triggers and indexes, write-ahead mode, the roots and holding
/// pages, and what is added. Places count from 0 in each parent (pages of the root from 1, after the holding
/// page), in the order of adding. The file must not exist. The first failure is kept; after one, and without
/// finish(), the file is of no use.
class LaunchpadDatabaseBuilder {
public:
    explicit LaunchpadDatabaseBuilder(const HostPath& file);

    LaunchpadRow addPage();

    /// A folder and its one page, which is returned: applications are added to it.
    LaunchpadRow addFolder(LaunchpadRow page, const std::string& title, std::int32_t flags = 0);

    LaunchpadRow addApp(LaunchpadRow page, const LaunchpadApp& app);

    void addSource(const LaunchpadSource& source);

    /// Switches the triggers on, commits and closes, so that no journal stays beside the file.
    Status finish();

private:
    LaunchpadRow addItem(std::optional<std::int64_t> row, const std::string& uuid,
                         std::optional<std::int32_t> flags, int type, LaunchpadRow parent);
    LaunchpadRow addPageOf(LaunchpadRow parent);
    void addGroup(LaunchpadRow row, const std::optional<std::string>& title);
    std::optional<std::int64_t> categoryRow(const std::string& category);
    std::string nextUUID();
    void execute(const char* sql);
    void run(sqlite::Statement& statement);
    void fail();

    std::optional<sqlite::Connection> m_connection;
    sqlite::Statement m_insertItem;
    sqlite::Statement m_insertGroup;
    sqlite::Statement m_insertApp;
    Status m_status = Done{};
    std::map<LaunchpadRow, std::int32_t> m_nextOrdering;
    std::map<std::string, std::int64_t> m_categories;
    std::uint64_t m_uuids = 0;
};

} // namespace tavrik::practice
