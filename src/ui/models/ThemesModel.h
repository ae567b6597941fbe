#pragma once

#include "platform/Path.h"
#include "ui/models/KeyedRows.h"
#include "ui/models/ThemeIconRow.h"

#include <QtQml/qqmlregistration.h>

#include <string>
#include <vector>

namespace tavrik {

class PendingChangesManager;
class ThemeShelf;

/// A theme in the library.
struct ThemeCard {
    std::string themeID;
    std::string name;
    std::vector<MacPath> preview; ///< the first icons, those that would be applied before the others
    int iconCount = 0;
    ThemeReach reach;
    bool isToBeRemoved = false;

    const std::string& key() const { return themeID; }

    bool operator==(const ThemeCard&) const = default;
};

/// The library, in the order in which the themes were made. Main thread.
class ThemesModel : public KeyedRows<ThemeCard> {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    enum Role {
        ThemeIDRole = Qt::UserRole,
        NameRole,
        PreviewRole,
        CoverageRole,
        CanApplyRole,
        IsToBeRemovedRole
    };

    ThemesModel(const ThemeShelf& shelf, const PendingChangesManager& changes);

    int count() const { return rowCount(); }

    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void update();

Q_SIGNALS:
    void countChanged();

private:
    const ThemeShelf& m_shelf;
    const PendingChangesManager& m_changes;
};

} // namespace tavrik
