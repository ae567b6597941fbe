#pragma once

#include "platform/NotificationCenter.h"
#include "ui/models/PreviewItemsModel.h"
#include "ui/models/PreviewPagesModel.h"
#include "ui/models/PreviewScene.h"
#include "ui/models/UiServices.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <string>
#include <vector>

namespace tavrik {

/// Launchpad and the Dock as they are and as they would be with what is staged, read anew after each edit while
/// they are shown: off the main thread, one reading at a time, and one more for all that comes meanwhile. Main
/// thread.
class PreviewModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(tavrik::PreviewPagesModel* pages READ pages CONSTANT)
    Q_PROPERTY(tavrik::PreviewItemsModel* tiles READ tiles CONSTANT)
    /// The view is on the screen: set by the view.
    Q_PROPERTY(bool isShown READ isShown WRITE setShown NOTIFY isShownChanged)
    Q_PROPERTY(bool isLoaded READ isLoaded NOTIFY changed)
    /// Why there is nothing to see; empty when there is.
    Q_PROPERTY(QString error READ error NOTIFY changed)
    /// How much is otherwise in Launchpad and the Dock.
    Q_PROPERTY(int changeCount READ changeCount NOTIFY changed)
    Q_PROPERTY(bool onlyChangedPages READ onlyChangedPages WRITE setOnlyChangedPages NOTIFY changed)

    /// The folder that is open.
    Q_PROPERTY(bool isFolderOpen READ isFolderOpen NOTIFY changed)
    Q_PROPERTY(tavrik::PreviewItemsModel* folder READ folder CONSTANT)
    Q_PROPERTY(QString folderNow READ folderNow NOTIFY changed)
    Q_PROPERTY(QString folderAfter READ folderAfter NOTIFY changed)

public:
    explicit PreviewModel(const UiServices& with);

    PreviewPagesModel* pages() { return &m_pages; }

    PreviewItemsModel* tiles() { return &m_tiles; }

    PreviewItemsModel* folder() { return &m_folder; }

    bool isShown() const { return m_isShown; }

    void setShown(bool shown);

    bool isLoaded() const { return m_isLoaded; }

    /// Nothing has happened that is not shown yet.
    bool isCurrent() const { return !m_isReading && !m_isStale; }

    const QString& error() const { return m_error; }

    int changeCount() const;

    bool onlyChangedPages() const { return m_onlyChangedPages; }

    void setOnlyChangedPages(bool only);

    bool isFolderOpen() const { return !m_folderKey.empty(); }

    QString folderNow() const;
    QString folderAfter() const;

    Q_INVOKABLE void openFolder(const QString& key);
    Q_INVOKABLE void closeFolder();

    /// What was read last.
    const PreviewScene& scene() const { return m_scene; }

Q_SIGNALS:
    void isShownChanged();
    void changed();

private:
    void noteChange();
    void read();
    void show();
    const PreviewItem* openItem() const;

    const UiServices m_with;
    PreviewPagesModel m_pages;
    PreviewItemsModel m_tiles;
    PreviewItemsModel m_folder;
    PreviewScene m_scene;
    QString m_error;
    std::string m_folderKey;
    int m_revision = 0; ///< of the pictures that are shown
    bool m_isShown = false;
    bool m_isLoaded = false;
    bool m_onlyChangedPages = false;
    bool m_isReading = false;
    bool m_isStale = true; ///< something happened since the last reading began
    std::vector<NotificationCenter::Observation> m_observations;
};

} // namespace tavrik
