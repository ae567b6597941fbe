#pragma once

#include "platform/Path.h"

#include <QAbstractListModel>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <string>
#include <vector>

namespace tavrik {

/// The icons of the applications, and which of them are cut to the standard outline. Main thread.
class IconShapesModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    struct Row {
        std::string bundleID;
        int number = 0; ///< of the icon, among those of its application
        QString app;
        QString path;
        bool isChosen = false; ///< the one that the Mac shows
        bool isCut = false;

        bool operator==(const Row&) const = default;
    };

    int count() const { return static_cast<int>(m_rows.size()); }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    const std::vector<Row>& rows() const { return m_rows; }

    /// Rows that are as they were stay untouched.
    void show(const std::vector<Row>& rows);

    void setCut(int row, bool cuts);

Q_SIGNALS:
    void countChanged();

private:
    enum Role { app = Qt::UserRole + 1, number, path, isChosen, isCut };

    std::vector<Row> m_rows;
};

} // namespace tavrik
