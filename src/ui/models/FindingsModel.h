#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace tavrik {

/// What a check of the health found, and what became of it. Main thread.
class FindingsModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum class Condition {
        Note,      ///< nothing is wrong
        ByHand,    ///< the advice says what the person can do
        Mendable,  ///< the advice says what mending does
        Mended,    ///< the advice says what was done
        NotMended, ///< the advice says why
    };
    Q_ENUM(Condition)

    struct Row {
        QString group; ///< what it stands below
        QString sentence;
        QString advice;
        Condition condition{};
    };

    int count() const { return static_cast<int>(m_rows.size()); }

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// The findings of another check.
    void show(std::vector<Row> rows);

Q_SIGNALS:
    void countChanged();

private:
    enum Role { group = Qt::UserRole + 1, sentence, advice, condition };

    std::vector<Row> m_rows;
};

} // namespace tavrik
