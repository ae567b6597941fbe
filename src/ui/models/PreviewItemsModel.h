#pragma once

#include "ui/models/PreviewScene.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace tavrik {

class Images;

/// The items of one page, of one folder, or of the Dock, each with both its faces. Main thread.
class PreviewItemsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    explicit PreviewItemsModel(const Images& images) : m_images(images) {}

    int count() const { return static_cast<int>(m_items.size()); }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// A row with the same item stays and changes; only what begins to differ is taken out and put in.
    void show(const std::vector<PreviewItem>& items);

    /// Icon files have changed under their names.
    void renewIcons();

    const std::vector<PreviewItem>& items() const { return m_items; }

Q_SIGNALS:
    void countChanged();

private:
    enum Role {
        key = Qt::UserRole + 1,
        isFolder,
        isGap,
        isLine,
        changesIcon,
        titleNow,
        titleAfter,
        iconNow, ///< addresses of pictures; empty where nothing is shown
        iconAfter,
        membersNow, ///< addresses of a folder's first icons
        membersAfter,
    };

    QString address(const PreviewIcon& icon) const;
    QStringList addresses(const PreviewItem& item, PreviewFace PreviewItem::* face) const;

    const Images& m_images;
    std::vector<PreviewItem> m_items;
};

} // namespace tavrik
