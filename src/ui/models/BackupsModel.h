#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <string>
#include <vector>

namespace tavrik {

/// The list of backups: the one that is kept for good, then the others, the newest first. Main thread.
class BackupsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

public:
    struct Row {
        std::string id;
        QString title;
        QString remark;
        QString group; ///< what it stands below
        bool isOriginal = false;

        bool operator==(const Row&) const = default;
    };

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    const std::vector<Row>& rows() const { return m_rows; }

    /// Where the backup of this name stands; -1 when it is not there.
    int rowOf(const std::string& id) const;

    /// The same backups stay as rows.
    void show(const std::vector<Row>& rows);

private:
    enum Role { key = Qt::UserRole + 1, title, remark, group, isOriginal };

    std::vector<Row> m_rows;
};

} // namespace tavrik
