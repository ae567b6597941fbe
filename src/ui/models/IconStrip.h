#pragma once

#include <QAbstractListModel>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace tavrik {

/// The tiles of one row: the application's own icon, its custom icons, the tile that adds one, the icons of
/// themes. A view makes one for each row that it shows and gives it that row's icons; what changes then are
/// single tiles. Main thread.
class IconStrip : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QStringList displayIcons READ displayIcons WRITE setDisplayIcons NOTIFY changed)
    Q_PROPERTY(QStringList themeIcons READ themeIcons WRITE setThemeIcons NOTIFY changed)
    /// How many of the display icons, at their end, are not applied yet.
    Q_PROPERTY(int pendingCount READ pendingCount WRITE setPendingCount NOTIFY changed)
    /// Among the display and the theme icons; -1 = the application's own.
    Q_PROPERTY(int selectedIconIndex READ selectedIconIndex WRITE setSelectedIconIndex NOTIFY changed)
    Q_PROPERTY(int count READ count NOTIFY changed)
    /// Where the chosen icon's tile stands.
    Q_PROPERTY(int selectedTile READ selectedTile NOTIFY changed)

public:
    enum Kind { Own, Custom, Add, Theme };
    Q_ENUM(Kind)

    enum Role {
        kind = Qt::UserRole + 1,
        path,     ///< of the icon's file, a path of the Mac; empty where there is none
        place,    ///< as `selectedIconIndex` counts
        isChosen, ///< the application shows this one
        isPending,
        beginsThemes, ///< the first icon of a theme
    };

    QStringList displayIcons() const { return m_displayIcons; }

    QStringList themeIcons() const { return m_themeIcons; }

    int pendingCount() const { return m_pendingCount; }

    int selectedIconIndex() const { return m_selectedIconIndex; }

    int count() const { return static_cast<int>(m_tiles.size()); }

    int selectedTile() const;

    void setDisplayIcons(const QStringList& icons);
    void setThemeIcons(const QStringList& icons);
    void setPendingCount(int count);
    void setSelectedIconIndex(int index);

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Of the tile at this place of the strip; nothing when there is none.
    Q_INVOKABLE QVariant tile(int at, const QString& role) const;

Q_SIGNALS:
    void changed();

private:
    struct Tile {
        Kind kind;
        QString path;

        bool operator==(const Tile&) const = default;
    };

    int placeOf(int row) const;
    void layOut();
    void tell();

    QStringList m_displayIcons;
    QStringList m_themeIcons;
    int m_pendingCount = 0;
    int m_selectedIconIndex = -1;
    std::vector<Tile> m_tiles{{Own, {}}, {Add, {}}};
};

} // namespace tavrik
