#pragma once

#include "ui/models/PreviewItemsModel.h"

#include <QAbstractListModel>
#include <QtQml/qqmlregistration.h>

#include <memory>
#include <vector>

namespace tavrik {

/// The pages of Launchpad. Main thread.
class PreviewPagesModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(int count READ count NOTIFY changed)

public:
    explicit PreviewPagesModel(const Images& images) : m_images(images) {}

    int count() const { return static_cast<int>(m_pages.size()); }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void show(const std::vector<std::vector<PreviewItem>>& pages);
    void renewIcons();

    /// How much is otherwise on a page, folders opened.
    Q_INVOKABLE int changesOn(int page) const;

Q_SIGNALS:
    /// The number of pages, or of changes on one.
    void changed();

private:
    enum Role { items = Qt::UserRole + 1, changeCount };

    const Images& m_images;
    std::vector<std::unique_ptr<PreviewItemsModel>> m_pages;
};

} // namespace tavrik
