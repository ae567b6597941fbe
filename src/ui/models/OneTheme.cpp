#include "ui/models/OneTheme.h"

#include "app/Managers.h"
#include "ui/models/Background.h"
#include "ui/models/CoreWords.h"
#include "ui/models/Images.h"
#include "ui/models/Notices.h"
#include "ui/models/Text.h"
#include "ui/models/ThemeShelf.h"
#include "ui/models/ThemeWork.h"

#include <QVariantMap>

#include <algorithm>
#include <array>
#include <utility>

namespace tavrik {

OneTheme::OneTheme(const UiServices& with, ThemeShelf& shelf, ThemeWork& work)
    : m_with(with),
      m_shelf(shelf),
      m_work(work) {
    connect(&shelf, &ThemeShelf::changed, this, &OneTheme::update);
}

QString OneTheme::themeID() const {
    return toQString(m_theme.themeID);
}

QString OneTheme::name() const {
    return toQString(m_theme.name);
}

QString OneTheme::coverage() const {
    return tr("Covers %1 of %2 apps").arg(m_reach.covered).arg(m_reach.restylable);
}

QVariantList OneTheme::filters() const {
    const std::array<std::pair<int, QString>, 6> choices = {
        std::pair(kEverything, tr("All")),
        std::pair(static_cast<int>(ThemeIconState::covered), tr("Covered")),
        std::pair(static_cast<int>(ThemeIconState::lacking), tr("Lacking")),
        std::pair(static_cast<int>(ThemeIconState::hidden), tr("Hidden")),
        std::pair(static_cast<int>(ThemeIconState::notRestylable), tr("Not Restylable")),
        std::pair(static_cast<int>(ThemeIconState::withoutApplication), tr("Not Installed"))};
    QVariantList list;
    for (const auto& [value, text] : choices) {
        const auto count = std::ranges::count_if(m_rows, [value = value](const ThemeIconRow& row) {
            return value == kEverything || static_cast<int>(row.state) == value;
        });
        if (count > 0 || value == m_filter)
            list.append(QVariantMap{{QStringLiteral("value"), value},
                                    {QStringLiteral("text"), tr("%1  %2").arg(text).arg(count)}});
    }
    return list;
}

void OneTheme::setFilter(int filter) {
    m_filter = filter;
    showRows();
}

void OneTheme::setSearch(const QString& search) {
    if (search == m_search)
        return;
    m_search = search;
    showRows();
}

void OneTheme::setEditing(bool isEditing) {
    m_isEditing = isEditing;
    m_nameProblem.clear();
    Q_EMIT changed();
}

void OneTheme::show(const std::string& themeID) {
    m_theme = Theme{.themeID = themeID, .name = {}, .createdDate = {}};
    m_wasThere = m_isEditing = false;
    m_filter = kEverything;
    m_search.clear();
    m_nameProblem.clear();
    m_rows.clear();
    m_icons.show({});
    update();
}

const ThemeFacts* OneTheme::facts() const {
    return m_shelf.reading().find(m_theme.themeID);
}

void OneTheme::update() {
    const ThemeFacts* const theme = facts();
    if (!theme && std::exchange(m_wasThere, false)) {
        show({});
        return;
    }
    if (theme) {
        m_wasThere = true;
        m_theme = theme->theme;
        m_rows = m_shelf.rowsOf(*theme);
        m_reach = reachOf(m_rows);
        m_isToBeRemoved =
            m_with.managers.pendingChanges.staged().pendingThemeDeletions.contains(m_theme.themeID);
    }
    showRows();
}

void OneTheme::showRows() {
    std::vector<ThemeIconRow> rows = m_rows;
    std::erase_if(rows, [this](const ThemeIconRow& row) {
        return (m_filter != kEverything && static_cast<int>(row.state) != m_filter) ||
               !(toQString(row.appName).contains(m_search, Qt::CaseInsensitive) ||
                 toQString(row.bundleID).contains(m_search, Qt::CaseInsensitive));
    });
    m_icons.show(rows);
    Q_EMIT changed();
}

void OneTheme::stageForIcon(const QString& bundleID,
                            void (PendingChangesManager::*how)(const std::string&, const std::string&)) {
    const ThemeFacts* const theme = facts();
    if (!theme || m_isToBeRemoved)
        return;
    for (const std::string& file : theme->filesOf(bundleID.toStdString()))
        (m_with.managers.pendingChanges.*how)(m_theme.themeID, file);
}

void OneTheme::toggle(const QString& bundleID) {
    const ThemeIconRow* const found = m_icons.find(bundleID.toStdString());
    if (!found || found->icon.empty() || found->isToBeRemoved || m_isToBeRemoved)
        return;
    const ThemeIconRow row = *found; // staging draws the rows anew
    const bool isHidden = row.state == ThemeIconState::hidden;
    const bool isApplied = isHidden && !row.isToBeHidden;
    if (row.state == ThemeIconState::notRestylable) {
        m_with.notices.refuse(inTheirLanguage(row.refusal));
        return;
    }
    stageForIcon(bundleID,
                 isHidden ? &PendingChangesManager::unhideThemeIcon : &PendingChangesManager::hideThemeIcon);
    if (!isApplied)
        return;
    m_with.background.run(
        this,
        [&hidden = m_with.managers.hiddenThemeIcons, themeID = m_theme.themeID,
         files = facts()->filesOf(row.bundleID)] {
            return std::ranges::all_of(files,
                                       [&](const std::string& file) { return hidden.unhide(themeID, file); });
        },
        [this, name = toQString(row.appName)](bool done) {
            if (done)
                m_with.notices.tell(tr("%1 is no longer hidden, as of now.").arg(name));
            else
                m_with.notices.refuse(tr("%1 is still hidden: the change could not be saved.").arg(name));
            m_shelf.reload();
        });
}

void OneTheme::remove(const QString& bundleID) {
    stageForIcon(bundleID, &PendingChangesManager::deleteThemeIcon);
}

void OneTheme::keep(const QString& bundleID) {
    stageForIcon(bundleID, &PendingChangesManager::keepThemeIcon);
}

void OneTheme::rename(const QString& name) {
    m_nameProblem.clear();
    Q_EMIT changed();
    if (trimmedThemeName(name.toStdString()) == m_theme.name)
        return;
    m_with.background.run(
        this,
        [&themes = m_with.managers.themes, theme = m_theme, name = name.toStdString()] {
            return themes.updateTheme(theme, name);
        },
        [this](const Status& renamed) {
            m_nameProblem = renamed ? QString() : inTheirLanguage(renamed.error().description);
            Q_EMIT changed();
        });
}

void OneTheme::renameIcon(const QString& bundleID, const QString& newBundleID) {
    const ThemeFacts* const theme = facts();
    const QString wanted = newBundleID.trimmed();
    if (!theme || wanted == bundleID || m_isToBeRemoved)
        return;
    const std::vector<std::string> files = theme->filesOf(bundleID.toStdString());
    if (files.empty())
        return;
    // What is staged goes by the old name.
    for (const std::string& file : files) {
        m_with.managers.pendingChanges.keepThemeIcon(m_theme.themeID, file);
        m_with.managers.pendingChanges.unhideThemeIcon(m_theme.themeID, file);
    }
    m_with.background.run(
        this,
        [&library = m_with.managers.themes.library(), themeID = m_theme.themeID, file = files.front(),
         wanted = wanted.toStdString()] { return library.renameIcon(themeID, file, wanted); },
        [this](const Status& renamed) {
            if (!renamed)
                m_with.notices.refuse(inTheirLanguage(renamed.error().description));
            m_with.images.raiseRevision();
            m_shelf.reload();
        });
}

} // namespace tavrik
