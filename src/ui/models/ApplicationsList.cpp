#include "ui/models/ApplicationsList.h"

#include "app/Managers.h"
#include "app/SharedCoordinators.h"
#include "ui/models/Background.h"
#include "ui/models/CoreWords.h"
#include "ui/models/HandedFile.h"
#include "ui/models/Notices.h"
#include "ui/models/Text.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include <algorithm>

namespace tavrik {

/// Pictures that were handed over together.
struct ApplicationsList::Adding {
    std::string bundleID;
    std::size_t open = 0; ///< not taken in or refused yet
    std::vector<QString> refusals{};
};

ApplicationsList::ApplicationsList(ApplicationsCoordinator& coordinator, const UiServices& with)
    : m_coordinator(coordinator),
      m_with(with),
      m_shown(m_rows, with) {
    connect(this, &ApplicationsList::shown, this, &ApplicationsList::changed);
    m_coordinator.setTable(this);
}

ApplicationsList::~ApplicationsList() {
    m_coordinator.setTable(nullptr);
}

void ApplicationsList::show(const std::vector<ApplicationRow>& rows) {
    m_rows.show(rows);
    Q_EMIT shown();
}

ApplicationsList::State ApplicationsList::state() const {
    const SharedCoordinators& all = m_with.coordinators;
    if (!all.userApps.isLoaded() || !all.systemApps.isLoaded())
        return Loading;
    if (all.userApps.applications().empty() && all.systemApps.applications().empty())
        return Unreadable; // no Mac is without an application
    if (total() == 0)
        return Empty;
    return shownCount() == 0 ? NoMatch : Ready;
}

int ApplicationsList::total() const {
    return static_cast<int>(m_coordinator.applications().size());
}

void ApplicationsList::select(const QString& bundleID, int place) {
    if (const Status done = m_coordinator.selectIcon(bundleID.toStdString(), place); !done)
        m_with.notices.refuse(inTheirLanguage(done.error().description));
}

void ApplicationsList::remove(const QString& bundleID, int place) {
    const std::string identifier = bundleID.toStdString();
    const ApplicationRow* const row = m_coordinator.find(identifier);
    if (!row || place < 0)
        return;
    const auto displayed = static_cast<int>(row->displayPaths().size());
    Status done = Done{};
    if (place < displayed) {
        done = m_coordinator.deleteIcon(identifier, place);
    } else if (const auto at = static_cast<std::size_t>(place - displayed); at < row->app.themeIcons.size()) {
        const MacPath icon = row->app.themeIcons[at];
        // ".../<theme>/Icons/<file>"; the entry that hides it is a PNG's in either format.
        done = m_coordinator.hideThemeIcon(identifier, icon.parent().parent().name(), icon.stem() + ".png");
    }
    if (!done)
        m_with.notices.refuse(inTheirLanguage(done.error().description));
}

void ApplicationsList::addFiles(const QString& bundleID, const QList<QUrl>& files) {
    const auto adding = std::make_shared<Adding>(
        Adding{.bundleID = bundleID.toStdString(), .open = static_cast<std::size_t>(files.size())});
    for (const QUrl& file : files) {
        m_with.background.run(
            this, [file] { return readHandedFile(file); },
            [this, adding, file](Result<Bytes> content) {
                add(adding, std::move(content), nameOfHandedFile(file));
            });
    }
}

void ApplicationsList::addData(const QString& bundleID, const QByteArray& data) {
    add(std::make_shared<Adding>(Adding{.bundleID = bundleID.toStdString(), .open = 1}),
        Bytes(data.begin(), data.end()), tr("The picture"));
}

void ApplicationsList::paste(const QString& bundleID) {
    const QMimeData* const clipboard = QGuiApplication::clipboard()->mimeData();
    // A file brings its icon along as a picture.
    if (clipboard && clipboard->hasUrls()) {
        addFiles(bundleID, clipboard->urls());
        return;
    }
    const QImage picture = clipboard ? qvariant_cast<QImage>(clipboard->imageData()) : QImage();
    if (picture.isNull()) {
        m_with.notices.refuse(
            tr("There is no picture on the clipboard. Copy a picture or its file, then paste it."));
        return;
    }
    const auto adding = std::make_shared<Adding>(Adding{.bundleID = bundleID.toStdString(), .open = 1});
    const auto completion = [this, adding](const Status& outcome) { noteOutcome(*adding, outcome); };
    if (const Status begun = m_coordinator.addIcon(adding->bundleID, picture, completion); !begun)
        noteOutcome(*adding, begun);
}

void ApplicationsList::add(const std::shared_ptr<Adding>& adding, Result<Bytes> content, const QString& name) {
    Status begun = content ? Status(Done{}) : content.error();
    if (content) {
        begun = m_coordinator.addIcon(adding->bundleID, std::move(*content), name.toStdString(),
                                      [this, adding](const Status& outcome) { noteOutcome(*adding, outcome); });
    }
    if (!begun)
        noteOutcome(*adding, begun);
}

void ApplicationsList::noteOutcome(Adding& adding, const Status& outcome) {
    if (!outcome)
        adding.refusals.push_back(inTheirLanguage(outcome.error().description));
    if (--adding.open > 0)
        return;
    if (adding.refusals.size() == 1)
        m_with.notices.refuse(adding.refusals.front());
    else if (!adding.refusals.empty())
        m_with.notices.refuse(
            tr("%n picture(s) not taken in. %1", nullptr, static_cast<int>(adding.refusals.size()))
                .arg(adding.refusals.front()));
    Q_EMIT added(toQString(adding.bundleID));
}

QString ApplicationsList::themeOf(const QString& icon) const {
    const std::string themeID = MacPath(icon.toStdString()).parent().parent().name();
    const auto& themes = m_with.managers.themes.installedThemes();
    const auto found = std::ranges::find(themes, themeID, &Theme::themeID);
    return found == themes.end() ? QString() : toQString(found->name);
}

} // namespace tavrik
