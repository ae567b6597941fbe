#pragma once

#include <QAbstractListModel>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace tavrik {

/// The styled alphabets, each on names of the person's own. Main thread.
class FontStylesModel : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

public:
    struct Style {
        QString name;
        QString sample;    ///< in the style
        QString lack;      ///< what it cannot write, in a sentence; empty when it writes every name
        QStringList lacks; ///< the names that it cannot write in full
        bool isCurrent = false;
        bool isStaged = false;

        bool operator==(const Style&) const = default;
    };

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Rows that are as they were stay untouched.
    void show(const std::vector<Style>& styles);

private:
    enum Role { name = Qt::UserRole + 1, sample, lack, lacks, isCurrent, isStaged };

    std::vector<Style> m_styles;
};

} // namespace tavrik
