#pragma once

#include "changes/StagedChanges.h"
#include "icons/list/ApplicationRow.h"
#include "icons/list/ListFilter.h"
#include "icons/list/RowOrder.h"
#include "platform/Bytes.h"
#include "platform/NotificationCenter.h"
#include "platform/Path.h"
#include "platform/Result.h"
#include "platform/SerialQueue.h"

#include <QImage>
#include <QObject>

#include <atomic>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace tavrik {

class AppManager;
class ApplicationsTable;
class FilterSettingsManager;
class FontReplacer;
class IconManager;
class IconShapeAnalysis;
class PendingChangesManager;
class SettingsManager;
class ThemeManager;
class UnsupportedAppsManager;
struct CatalogueReading;
struct StagedDifference;
struct Mac;

/// Posted on the main thread after each change to a row.
inline constexpr std::string_view kApplicationDataUpdated = "ApplicationDataUpdated";

/// Which applications a coordinator lists: those below "/System/", or all others.
enum class LoadingMode { userApps, systemApps };

/// What a coordinator works with.
struct ListServices {
    Mac& mac;
    SettingsManager& settings;
    AppManager& apps;
    const IconManager& icons;
    const FontReplacer& fonts;
    const UnsupportedAppsManager& unsupported;
    PendingChangesManager& pendingChanges;
    ThemeManager& themes;
    NotificationCenter& notifications;
    FilterSettingsManager& filters;
    IconShapeAnalysis& shapes;
};

/// Drives one list of applications: keeps its records, filters and sorts them, and turns what a person does
/// with a row into staged changes. Main thread only; reading and decoding run elsewhere and come back here.
///
/// It follows what is staged by itself: after "PendingChangesUpdated" the rows whose staged changes differ are
/// read anew, at once. A chosen icon of a theme is recorded as a place among those that are offered; when
/// others come or go, the coordinator stages the place where it stands then, or the application's own icon when
/// the person has hidden or deleted the chosen one. Nothing is staged so while an apply runs.
class ApplicationsCoordinator {
public:
    ApplicationsCoordinator(LoadingMode mode, const ListServices& with);
    ~ApplicationsCoordinator();

    LoadingMode mode() const { return m_mode; }

    /// Takes the records of its mode from a reading, validates each one's state, and applies the filters. A
    /// record keeps its identity as long as its application stays. An empty reading changes nothing once
    /// records are there.
    void load(const CatalogueReading& reading);

    bool isLoaded() const { return m_isLoaded; }

    /// All records, sorted, and those that the filters let pass.
    const std::vector<ApplicationRow>& applications() const { return m_applications; }

    const std::vector<ApplicationRow>& filteredApplications() const { return m_filteredApplications; }

    /// Null when it is not listed.
    const ApplicationRow* find(const std::string& bundleID) const;

    SortOrder sortOrder() const { return m_sortOrder; }

    void setSortOrder(SortOrder order);

    /// The view's model; null when there is none. It must outlive the coordinator or be taken back.
    void setTable(ApplicationsTable* table);

    /// Recomputes what is shown. Starts the analysis of the icons' shapes when it is asked for by the filters
    /// and not all of them are known.
    void applyFilters();

    bool isAnalyzingIcons() const { return m_isAnalyzingIcons; }

    /// The application's own icon, at least `side` pixels large where there is such a one, decoded on the queue
    /// "com.tavrik.icons". The completion runs on the main queue and is dropped when `context` is gone.
    void loadIcon(const std::string& bundleID, int side, QObject* context,
                  std::function<void(const QImage&)> completion);

    /// What a person does with a row. The error is a sentence fit to be shown; nothing is staged then. Adding
    /// answers through the completion, on the main queue, unless it is refused at once.
    using Completion = std::function<void(const Status&)>;
    Status addIcon(const std::string& bundleID, const QImage& image, Completion completion);
    Status addIcon(const std::string& bundleID, Bytes picture, const std::string& pictureName,
                   Completion completion);
    Status deleteIcon(const std::string& bundleID, int displayIndex);
    /// -1 = the application's own icon.
    Status selectIcon(const std::string& bundleID, int index);
    Status hideThemeIcon(const std::string& bundleID, const std::string& themeID, const std::string& fileName);

private:
    struct MovedChoice;

    bool readIcons(ApplicationRow& row);
    IconRow recordedIcons(const std::string& bundleID) const;
    void pendingChangesUpdated();
    void readAnew(const StagedDifference& difference);
    void follow(const std::vector<MovedChoice>& choices);
    void analyseShapes();
    void shapesAnalysed();

    Result<ApplicationRow> restylable(const std::string& bundleID, const char* refusedForIOS,
                                      const char* refusedForUnsupported) const;
    Result<int> recordedPlace(const ApplicationRow& row, int index);
    Error changedMeanwhile(const ApplicationRow& row);
    std::function<void(const Result<MacPath>&)> stagingOf(const ApplicationRow& row, Completion completion);

    const LoadingMode m_mode;
    const ListServices m_with;
    ApplicationsTable* m_table = nullptr;
    std::vector<ApplicationRow> m_applications;
    std::vector<ApplicationRow> m_filteredApplications;
    SortOrder m_sortOrder = SortOrder::ascending;
    bool m_isLoaded = false;
    ListFilter m_filter;  ///< by which `m_filteredApplications` were chosen
    StagedChanges m_seen; ///< with which the records were read
    bool m_isReading = false;
    std::map<std::string, std::vector<std::string>> m_warnings; ///< of each record as it was last read
    bool m_isAnalyzingIcons = false;
    int m_analysisRun = 0;
    std::set<MacPath> m_analysed; ///< applications whose icons need no second look before the next load
    std::atomic<bool> m_isStopping = false;
    std::vector<NotificationCenter::Observation> m_observations;
    QObject m_mainThread;
    SerialQueue m_iconQueue{"com.tavrik.icons"}; ///< last: runs out before the rest goes
};

} // namespace tavrik
