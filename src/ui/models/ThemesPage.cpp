#include "ui/models/ThemesPage.h"

#include "app/Managers.h"
#include "platform/Mac.h"
#include "themes/ThemeError.h"
#include "ui/models/Background.h"
#include "ui/models/CoreWords.h"
#include "ui/models/Images.h"
#include "ui/models/Text.h"

#include <algorithm>
#include <utility>

namespace tavrik {

ThemesPage::ThemesPage(const UiServices& with, ThemeLook& look)
    : m_with(with),
      m_look(look),
      m_shelf(with),
      m_library(m_shelf, with.managers.pendingChanges),
      m_theme(with, m_shelf, m_work),
      m_folderImport(with, m_work) {
    connect(&m_shelf, &ThemeShelf::changed, this, &ThemesPage::update);
    connect(&m_folderImport, &FolderImportModel::taken, this, &ThemesPage::showTheme);
}

void ThemesPage::open() {
    m_shelf.open();
}

void ThemesPage::update() {
    m_library.update();
    Q_EMIT changed();
}

void ThemesPage::setCreating(bool isCreating) {
    if (isCreating == m_isCreating)
        return;
    m_isCreating = isCreating;
    m_createProblem.clear();
    Q_EMIT changed();
}

void ThemesPage::showTheme(const QString& themeID) {
    m_theme.show(themeID.toStdString());
}

void ThemesPage::showLibrary() {
    m_theme.show({});
}

QString ThemesPage::nameProblem(const QString& name) const {
    if (name.isEmpty())
        return {};
    const Status free = m_with.managers.themes.checkNewName(name.toStdString());
    return free ? QString() : inTheirLanguage(free.error().description);
}

void ThemesPage::create(const QString& name, bool moveActiveIcons) {
    if (!m_work.begin(tr("Making “%1”…").arg(name.trimmed())))
        return;
    m_createProblem.clear();
    Q_EMIT changed();
    m_with.background.run(
        this,
        [&themes = m_with.managers.themes, name = name.toStdString(), moveActiveIcons] {
            return themes.createTheme(name, moveActiveIcons);
        },
        [this](const Result<Theme>& created) {
            m_work.end({});
            if (created) {
                setCreating(false);
                m_theme.show(created->themeID);
                m_shelf.reload(); // it has got its icons by now
                return;
            }
            m_createProblem = inTheirLanguage(created.error().description);
            Q_EMIT changed();
        });
}

void ThemesPage::apply(const QString& themeID) {
    const ThemeFacts* const facts = m_shelf.reading().find(themeID.toStdString());
    if (!facts || !m_work.begin(tr("Applying “%1”…").arg(toQString(facts->theme.name)), facts->theme.themeID))
        return;
    m_with.background.run(
        this, [&themes = m_with.managers.themes, theme = facts->theme] { return themes.applyTheme(theme); },
        [this, name = toQString(facts->theme.name)](const ThemeApplication& answer) {
            QStringList details;
            QStringList leftAlone;
            for (const ApplicationInfo& app : answer.leftAlone)
                leftAlone.append(toQString(app.name));
            if (!leftAlone.empty())
                details.append(
                    tr("Left alone, since they cannot be restyled: %1.").arg(leftAlone.join(tr(", "))));
            details.append(inTheirLanguage(answer.failed));
            if (answer.applied == 0)
                m_work.fail(tr("“%1” has no icon to apply for any app.").arg(name), details);
            else
                m_work.end(tr("“%1” is chosen for %n app(s). Your Mac stays as it is until you apply.", "",
                              static_cast<int>(answer.applied))
                               .arg(name),
                           details);
        });
}

void ThemesPage::moveToBin(const QString& themeID) {
    if (m_work.isRunning() && m_work.themeID() == themeID)
        return;
    m_with.managers.pendingChanges.deleteTheme(themeID.toStdString());
    showLibrary();
}

void ThemesPage::keep(const QString& themeID) {
    m_with.managers.pendingChanges.keepTheme(themeID.toStdString());
}

} // namespace tavrik
