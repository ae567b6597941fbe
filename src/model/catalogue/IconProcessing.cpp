#include "icons/IconCache.h"
#include "icons/IconStore.h"
#include "icons/ImageIntake.h"
#include "model/catalogue/AppManager.h"
#include "platform/Log.h"
#include "platform/MainQueue.h"
#include "system/IconManager.h"

#include <utility>

namespace tavrik {

namespace {

Error notSaved(const std::string& bundleID, const std::string& name) {
    log("❌ CRITICAL: Failed to save icon for " + bundleID + " - no path returned");
    return {"The icon for “" + name + "” could not be saved. Look whether the disk is full, and try again."};
}

} // namespace

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
        const Result<IconPicture> icon = iconPicture(picture(), bundleID, name);
        const Result<MacPath> saved = icon ? saveIcon(*icon, bundleID, name) : Result<MacPath>(icon.error());
        // Every answer is posted from this one thread: that keeps them in the order of the hand-over.
        MainQueue::async(context, [completion, saved] { completion(saved); });
    });
}

Result<IconPicture> AppManager::iconPicture(const Result<QImage>& picture, const std::string& forBundleID,
                                            const std::string& name) {
    const auto square = picture && !picture->isNull() ? IconManager::squareIcon(*picture) : std::nullopt;
    if (!square) {
        log("❌ ERROR: Failed to convert icon to square PNG for " + forBundleID);
        return picture
                   ? Error{"The picture for “" + name + "” could not be made into an icon. Try another one."}
                   : picture.error();
    }
    auto icon = IconStore::iconPicture(*square);
    return icon ? Result<IconPicture>(std::move(*icon)) : notSaved(forBundleID, name);
}

Result<MacPath> AppManager::saveIcon(const IconPicture& picture, const std::string& forBundleID,
                                     const std::string& name) {
    const auto path = m_store.savePendingIcon(picture, forBundleID);
    if (!path)
        return notSaved(forBundleID, name);

    // In memory, where the store left it, with its thumbnails to follow.
    log("✅ Saved icon to pending directory: " + path->string());
    m_cache.loadImage(*path);
    m_cache.generateThumbnails(*path);
    return *path;
}

} // namespace tavrik
