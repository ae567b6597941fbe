#pragma once

#include "model/ApplicationInfo.h"
#include "platform/Bytes.h"
#include "platform/Result.h"
#include "platform/SerialQueue.h"
#include "wrappers/TavrikAppManager.h"

#include <QImage>
#include <QPointer>

#include <atomic>
#include <functional>
#include <string>
#include <vector>

class QObject;

namespace tavrik {

class DatabaseManager;
class IconCache;
class IconStore;
struct IconPicture;
class SettingsManager;

/// The catalogue of the applications that Launchpad shows, read from its database on demand; and the door
/// through which new pictures for an application come in and wrappers are asked for.
class AppManager {
public:
    AppManager(DatabaseManager& database, SettingsManager& settings, TavrikAppManager& wrappers,
               IconStore& store, IconCache& cache);

    /// One record per bundle identifier, by name. Empty when the database cannot be read. Background thread;
    /// blocks on the disk.
    std::vector<ApplicationInfo> loadApplications();

    /// The path of the saved pending icon, or in a sentence why there is none.
    using IconCompletion = std::function<void(const Result<MacPath>&)>;

    /// Makes the picture an application's next pending icon: squared, saved, and in the cache with its
    /// thumbnails on the way. Returns at once; pictures are processed one at a time, in the order they were
    /// handed over, and each completion runs on the main queue in that order, unless its context, alive during
    /// the call, is gone by then. `name` is the application's, for the sentence of a failure. A failure or a
    /// kill leaves the whole icon or none. Any thread.
    void processIcon(const QImage& image, const std::string& forBundleID, const std::string& name,
                     QObject* context, IconCompletion completion);

    /// The same from the content of a file that a person handed over. A picture that cannot be taken in leaves
    /// no file. `pictureName` is what the person called it.
    void processPicture(Bytes content, const std::string& pictureName, const std::string& forBundleID,
                        const std::string& name, QObject* context, IconCompletion completion);

    /// The same in two steps on the calling thread, out of that turn: for many pictures side by side. `picture`
    /// may be the reason why there is none. Between the two nothing is on disk. Any thread but the main one.
    static Result<IconPicture> iconPicture(const Result<QImage>& picture, const std::string& forBundleID,
                                           const std::string& name);
    Result<MacPath> saveIcon(const IconPicture& picture, const std::string& forBundleID,
                             const std::string& name);

    /// Set while an apply runs.
    std::atomic<bool> isApplyingChanges = false;

    /// Both refuse iOS apps with a log line, and else do what the wrappers' own operations do, on the calling
    /// thread: a background one; seconds.
    bool updateWrapperIcon(const ApplicationInfo& forApp, const QImage& image);
    bool removeWrapper(const ApplicationInfo& forApp, RestartDock restartDock);

    /// Registers every wrapper again. Background thread; seconds for each.
    void refreshAllWrapperApps();

    /// The pictures of an application's permanent icons; one that cannot be read is passed over. Not on the
    /// main thread: decodes files.
    std::vector<QImage> savedIcons(const std::string& forBundleID);

private:
    void process(std::function<Result<QImage>()> picture, const std::string& bundleID, const std::string& name,
                 QPointer<QObject> context, IconCompletion completion);

    DatabaseManager& m_database;
    SettingsManager& m_settings;
    TavrikAppManager& m_wrappers;
    IconStore& m_store;
    IconCache& m_cache;
    SerialQueue m_iconProcessing{"com.tavrik.iconProcessing"}; ///< last: runs out before the rest goes
};

} // namespace tavrik
