#include "ui/models/PreviewModel.h"

#include "app/AppDelegate.h"
#include "app/Managers.h"
#include "ui/models/Background.h"
#include "ui/models/CoreWords.h"
#include "ui/models/Images.h"
#include "ui/models/Text.h"

#include <algorithm>

namespace tavrik {

PreviewModel::PreviewModel(const UiServices& with)
    : m_with(with),
      m_pages(with.images),
      m_tiles(with.images),
      m_folder(with.images) {
    for (const std::string_view name : {kPendingChangesUpdated, kReloadApplicationsAfterApply,
                                        kReloadApplicationsAfterBackupRestore, kBlockingStateChanged}) {
        m_observations.push_back(
            with.managers.notificationCenter.observe(std::string(name), [this] { noteChange(); }));
    }
    // Which files there are now is known after a reading.
    connect(&with.images, &Images::revisionChanged, this, [this] { noteChange(); });
}

void PreviewModel::setShown(bool shown) {
    if (shown == m_isShown)
        return;
    m_isShown = shown;
    Q_EMIT isShownChanged();
    noteChange(); // the Dock may have written meanwhile
}

int PreviewModel::changeCount() const {
    int count = 0;
    for (const auto& page : m_scene.pages) {
        for (const PreviewItem& item : page)
            count += item.changeCount();
    }
    for (const PreviewItem& tile : m_scene.tiles)
        count += tile.changeCount();
    return count;
}

void PreviewModel::setOnlyChangedPages(bool only) {
    m_onlyChangedPages = only;
    show();
}

QString PreviewModel::folderNow() const {
    const PreviewItem* const folder = openItem();
    return folder ? toQString(folder->now.title) : QString();
}

QString PreviewModel::folderAfter() const {
    const PreviewItem* const folder = openItem();
    return folder ? toQString(folder->after.title) : QString();
}

void PreviewModel::openFolder(const QString& key) {
    m_folderKey = key.toStdString();
    show();
}

void PreviewModel::closeFolder() {
    m_folderKey.clear();
    Q_EMIT changed(); // the items stay while the folder fades
}

void PreviewModel::noteChange() {
    m_isStale = true;
    read();
}

void PreviewModel::read() {
    // An apply has the stores for itself; its end is heard of.
    if (!m_isShown || !m_isStale || m_isReading || m_with.delegate.isBlocked())
        return;
    m_isReading = true;
    m_isStale = false;
    m_with.background.run(
        this,
        [&services = m_with.managers.applyServices, staged = m_with.managers.pendingChanges.staged()] {
            return readPreview(services, staged);
        },
        [this](Result<PreviewScene> scene) {
            m_isReading = false;
            m_isLoaded = true;
            m_error = scene ? QString() : inTheirLanguage(scene.error().description);
            if (scene)
                m_scene = std::move(*scene);
            show();
            read();
        });
}

void PreviewModel::show() {
    const PreviewItem* const folder = openItem();
    if (folder)
        m_folder.show(folder->members);
    else
        m_folderKey.clear();

    auto pages = m_scene.pages;
    if (m_onlyChangedPages) {
        std::erase_if(pages, [](const auto& page) {
            return std::ranges::all_of(page, [](const PreviewItem& item) { return item.changeCount() == 0; });
        });
    }
    m_pages.show(pages);
    m_tiles.show(m_scene.tiles);
    if (m_revision != m_with.images.revision()) {
        m_revision = m_with.images.revision();
        m_pages.renewIcons();
        m_tiles.renewIcons();
        m_folder.renewIcons();
    }
    Q_EMIT changed();
}

const PreviewItem* PreviewModel::openItem() const {
    if (m_folderKey.empty())
        return nullptr;
    for (const auto& page : m_scene.pages) {
        for (const PreviewItem& item : page) {
            if (item.kind == PreviewItem::Kind::folder && item.key == m_folderKey)
                return &item;
        }
    }
    return nullptr;
}

} // namespace tavrik
