#include "icons/IconCache.h"
#include "icons/IconStore.h"
#include "icons/ImageIntake.h"
#include "model/catalogue/AppManager.h"
#include "platform/Log.h"
#include "platform/MainQueue.h"
#include "system/IconManager.h"

#include <utility>

namespace tavrik {

void AppManager::processIcon(const QImage& image, const std::string& forBundleID, const std::string& name,
                             QObject* context, IconCompletion completion) {
    process([image] { return image; }, forBundleID, name, context, std::move(completion));
}

void AppManager::processPicture(Bytes content, const std::string& pictureName, const std::string& forBundleID,
                                const std::string& name, QObject* context, IconCompletion completion) {
    process([content = std::move(content), pictureName] { return readPicture(content, pictureName); },
            forBundleID, name, context, std::move(completion));
}

void AppManager::process(std::function<Result<QImage>()> picture, const std::string& bundleID,
                         const std::string& name, QPointer<QObject> context, IconCompletion completion) {
    m_iconProcessing.async([this, picture = std::move(picture), bundleID, name, context = std::move(context),
                            completion = std::move(completion)] {
        // Every answer is posted from this one thread: that keeps them in the order of the hand-over.
        MainQueue::async(context, [completion, saved = save(picture(), bundleID, name)] { completion(saved); });
    });
}

Result<MacPath> AppManager::save(const Result<QImage>& picture, const std::string& bundleID,
                                 const std::string& name) {
    // A square of the icons' own size.
    const auto square = picture && !picture->isNull() ? IconManager::squareIcon(*picture) : std::nullopt;
    if (!square) {
        log("❌ ERROR: Failed to convert icon to square PNG for " + bundleID);
        return picture
                   ? Error{"The picture for “" + name + "” could not be made into an icon. Try another one."}
                   : picture.error();
    }

    // The application's next pending icon.
    const auto path = m_store.savePendingIcon(*square, bundleID);
    if (!path) {
        log("❌ CRITICAL: Failed to save icon for " + bundleID + " - no path returned");
        return Error{"The icon for “" + name +
                     "” could not be saved. Look whether the disk is full, and try again."};
    }

    // In memory, where the store left it, with its thumbnails to follow.
    log("✅ Saved icon to pending directory: " + path->string());
    m_cache.loadImage(*path);
    m_cache.generateThumbnails(*path);
    return *path;
}

} // namespace tavrik
