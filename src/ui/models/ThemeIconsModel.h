#pragma once

#include "ui/models/KeyedRows.h"
#include "ui/models/ThemeIconRow.h"

#include <QtQml/qqmlregistration.h>

#include <string>

namespace tavrik {

/// The icons of one theme by application, filtered. Main thread.
class ThemeIconsModel : public KeyedRows<ThemeIconRow> {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

public:
    enum Role {
        BundleIDRole = Qt::UserRole,
        NameRole,
        AppPathRole,
        IconPathRole,
        FileNameRole,
        StateRole,
        RemarkRole, ///< what is particular, in words
        IsToBeHiddenRole,
        IsToBeRemovedRole,
    };

    enum State { Covered, Hidden, Lacking, NotRestylable, WithoutApplication };
    Q_ENUM(State)

    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    void show(const std::vector<ThemeIconRow>& rows) { setRows(rows); }

    const ThemeIconRow* find(const std::string& bundleID) const;

private:
    static QString remarkOn(const ThemeIconRow& row);
};

} // namespace tavrik
