#include "ui/models/PreferencesPage.h"

#include "app/AppDelegate.h"
#include "app/Managers.h"
#include "changes/apply/SelectedIcon.h"
#include "platform/Mac.h"
#include "platform/UserDefaults.h"
#include "ui/models/Background.h"
#include "ui/models/Text.h"

#include <algorithm>

namespace tavrik {

namespace {

/// Every icon of a person's own, and the one of a theme where that is in use.
std::vector<IconShapesModel::Row> readRows(Managers& managers) {
    std::vector<IconShapesModel::Row> rows;
    for (const ApplicationInfo& app : managers.apps.loadApplications()) {
        const auto add = [&](int number, const MacPath& icon, bool isChosen) {
            rows.push_back({.bundleID = app.bundleID,
                            .number = number,
                            .app = toQString(managers.fonts.fontReplacer().convertToNormal(app.name)),
                            .path = toQString(icon.string()),
                            .isChosen = isChosen,
                            .isCut = managers.iconSettings.squircleSetting(app.bundleID, number)});
        };
        const auto selected = managers.settings.getSelectedIcon(app.bundleID);
        const std::vector<MacPath> own = managers.iconStore.listIcons(app.bundleID);
        for (std::size_t number = 0; number < own.size(); ++number)
            add(static_cast<int>(number), own[number], selected == static_cast<std::int64_t>(number));
        if (!selected || *selected < static_cast<std::int64_t>(own.size()))
            continue;
        if (const auto icon = selectedIconFile(managers.applyServices, app.bundleID))
            add(static_cast<int>(*selected), *icon, true);
    }
    std::ranges::stable_sort(rows, [](const IconShapesModel::Row& one, const IconShapesModel::Row& other) {
        return one.app.localeAwareCompare(other.app) < 0;
    });
    return rows;
}

} // namespace

PreferencesPage::PreferencesPage(const UiServices& with, ThemeLook& themeLook)
    : m_with(with),
      m_themeLook(themeLook) {
    for (const std::string_view name : {kReloadApplicationsAfterApply, kReloadApplicationsAfterBackupRestore}) {
        m_observations.push_back(with.managers.notificationCenter.observe(std::string(name), [this] {
            if (m_areShapesLoaded)
                readShapes();
        }));
    }
}

void PreferencesPage::setTab(Tab tab) {
    if (tab == m_tab)
        return;
    m_tab = tab;
    Q_EMIT tabChanged();
}

void PreferencesPage::open() {
    UserDefaults& defaults = m_with.managers.applyServices.mac.defaults;
    const auto asked = defaults.value(kOpenBackupExplorer);
    const bool* const isAsked = asked ? asked->as<bool>() : nullptr;
    if (isAsked && *isAsked) {
        setTab(Tab::Backups);
        ignoreFailure(defaults.set(kOpenBackupExplorer, std::nullopt));
    }
}

void PreferencesPage::readShapes() {
    m_with.background.run(
        this, [&managers = m_with.managers] { return readRows(managers); },
        [this](const std::vector<IconShapesModel::Row>& rows) {
            m_areShapesLoaded = true;
            m_shapes.show(rows);
            Q_EMIT changed();
        });
}

void PreferencesPage::setCut(int row, bool isCut) {
    if (row < 0 || row >= m_shapes.count())
        return;
    m_shapes.setCut(row, isCut);
    const IconShapesModel::Row& icon = m_shapes.rows()[static_cast<std::size_t>(row)];
    m_with.background.run(
        this,
        [&settings = m_with.managers.iconSettings, bundleID = icon.bundleID, number = icon.number, isCut] {
            settings.setSquircleSetting(bundleID, number, isCut);
            return settings.squircleSetting(bundleID, number) == isCut;
        },
        [this](bool isSaved) {
            saved(isSaved);
            if (!isSaved)
                readShapes();
        });
}

void PreferencesPage::saved(bool isSaved) {
    m_problem = isSaved ? QString() : tr("This could not be saved. Is the disk full?");
    Q_EMIT changed();
}

} // namespace tavrik
