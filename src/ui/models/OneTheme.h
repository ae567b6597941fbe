#pragma once

#include "themes/Theme.h"
#include "ui/models/ThemeIconsModel.h"
#include "ui/models/UiServices.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <map>
#include <string>
#include <vector>

namespace tavrik {

class PendingChangesManager;
class ThemeShelf;
class ThemeWork;
struct ThemeFacts;

/// The theme that is looked at: its icons, and what is done with them. Hiding and deleting are staged; a name
/// and a picture are written at once. Main thread.
class OneTheme : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(QString themeID READ themeID NOTIFY changed) ///< empty when none is looked at
    Q_PROPERTY(QString name READ name NOTIFY changed)
    Q_PROPERTY(QString coverage READ coverage NOTIFY changed)
    Q_PROPERTY(bool canApply READ canApply NOTIFY changed)
    Q_PROPERTY(bool isToBeRemoved READ isToBeRemoved NOTIFY changed)
    Q_PROPERTY(tavrik::ThemeIconsModel* icons READ icons CONSTANT)
    /// [{ text, value }], those that let something pass; -1 lets all pass.
    Q_PROPERTY(QVariantList filters READ filters NOTIFY changed)
    Q_PROPERTY(int filter READ filter WRITE setFilter NOTIFY changed)
    Q_PROPERTY(QString search READ search WRITE setSearch NOTIFY changed)
    Q_PROPERTY(bool isEditing READ isEditing WRITE setEditing NOTIFY changed)
    Q_PROPERTY(QString nameProblem READ nameProblem NOTIFY changed) ///< why it was not renamed

public:
    static constexpr int kEverything = -1;

    OneTheme(const UiServices& with, ThemeShelf& shelf, ThemeWork& work);

    QString themeID() const;
    QString name() const;
    QString coverage() const;

    bool canApply() const { return m_reach.covered > 0 && !m_isToBeRemoved; }

    bool isToBeRemoved() const { return m_isToBeRemoved; }

    ThemeIconsModel* icons() { return &m_icons; }

    QVariantList filters() const;

    int filter() const { return m_filter; }

    void setFilter(int filter);

    QString search() const { return m_search; }

    void setSearch(const QString& search);

    bool isEditing() const { return m_isEditing; }

    void setEditing(bool isEditing);

    QString nameProblem() const { return m_nameProblem; }

    /// Nothing when the id is empty.
    void show(const std::string& themeID);

    /// Hides an icon from being applied, staged, or shows it again: at once when its hiding was applied before.
    Q_INVOKABLE void toggle(const QString& bundleID);
    /// Stages the deletion of an icon, and takes it back.
    Q_INVOKABLE void remove(const QString& bundleID);
    Q_INVOKABLE void keep(const QString& bundleID);

    Q_INVOKABLE void rename(const QString& name);
    /// Gives an icon to another application.
    Q_INVOKABLE void renameIcon(const QString& bundleID, const QString& newBundleID);

    /// Pictures that a person let go on an application's tile, or, without one, anywhere else. One on a tile is
    /// that application's; others go by their names.
    Q_INVOKABLE void drop(const QList<QUrl>& pictures, const QString& bundleID);

Q_SIGNALS:
    void changed();

private:
    void update();
    void showRows();
    const ThemeFacts* facts() const;
    void stageForIcon(const QString& bundleID,
                      void (PendingChangesManager::*how)(const std::string&, const std::string&));

    const UiServices m_with;
    ThemeShelf& m_shelf;
    ThemeWork& m_work;
    ThemeIconsModel m_icons;
    std::vector<ThemeIconRow> m_rows; ///< unfiltered
    Theme m_theme;
    ThemeReach m_reach;
    bool m_isToBeRemoved = false;
    bool m_wasThere = false; ///< since it is looked at
    bool m_isEditing = false;
    int m_filter = kEverything;
    QString m_search;
    QString m_nameProblem;
};

} // namespace tavrik
