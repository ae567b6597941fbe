#include "ui/models/FolderImportModel.h"

#include "app/Managers.h"
#include "themes/HostPictures.h"
#include "ui/models/Background.h"
#include "ui/models/CoreWords.h"
#include "ui/models/Text.h"
#include "ui/models/ThemeWork.h"

#include <QDir>
#include <QLocale>

#include <algorithm>
#include <utility>

namespace tavrik {

/// What a reading of the folder came to.
struct FolderImportModel::Reviewed {
    PictureFolder pictures;
    IconMatches matches;
    std::vector<FolderImportRow> rows;
};

FolderImportModel::FolderImportModel(const UiServices& with, ThemeWork& work) : m_with(with), m_work(work) {}

namespace {

QString inWords(const IconMatch& match) {
    switch (match.kind) {
    case MatchKind::identifier:
        return FolderImportModel::tr("By identifier");
    case MatchKind::name:
        return FolderImportModel::tr("By name");
    case MatchKind::foldedName:
        return FolderImportModel::tr("By similar name");
    case MatchKind::subsequence:
        break;
    }
    return FolderImportModel::tr("A guess, %1 %").arg(QLocale().toString(qRound(match.score * 100)));
}

} // namespace

QVariant FolderImportModel::data(const QModelIndex& index, int role) const {
    if (index.row() < 0 || index.row() >= rowCount())
        return {};
    const FolderImportRow& row = rows()[static_cast<std::size_t>(index.row())];
    switch (role) {
    case PictureRole:
        return toQString((m_folder / row.match.fileName).string());
    case FileNameRole:
        return row.alternatives == 0 ? toQString(row.match.fileName)
                                     : tr("%1 and %n more; the largest is taken", "", row.alternatives)
                                           .arg(toQString(row.match.fileName));
    case AppNameRole:
        return toQString(row.match.appName);
    case AppPathRole:
        return toQString(row.appPath.string());
    case KindRole:
        return inWords(row.match);
    case IsDoubtfulRole:
        return !row.isSure;
    case IsTickedRole:
        return row.isTicked;
    default:
        return {};
    }
}

QHash<int, QByteArray> FolderImportModel::roleNames() const {
    return {{PictureRole, "picture"},  {FileNameRole, "fileName"}, {AppNameRole, "appName"},
            {AppPathRole, "appPath"},  {KindRole, "kind"},         {IsDoubtfulRole, "isDoubtful"},
            {IsTickedRole, "isTicked"}};
}

QString FolderImportModel::folderName() const {
    return toQString(m_folder.name());
}

void FolderImportModel::setThemeName(const QString& name) {
    if (name == m_themeName)
        return;
    m_themeName = name;
    checkName();
}

int FolderImportModel::tickedCount() const {
    return static_cast<int>(std::ranges::count_if(rows(), &FolderImportRow::isTicked));
}

int FolderImportModel::guessCount() const {
    return static_cast<int>(std::ranges::count_if(rows(), [](const auto& row) { return !row.isSure; }));
}

bool FolderImportModel::takesGuesses() const {
    return std::ranges::all_of(rows(), [](const auto& row) { return row.isTicked || row.isSure; });
}

void FolderImportModel::setTakesGuesses(bool takes) {
    std::vector<FolderImportRow> ticked = rows();
    for (FolderImportRow& row : ticked)
        row.isTicked = !row.isSure ? takes : row.isTicked;
    setRows(ticked);
    Q_EMIT changed();
}

QString FolderImportModel::unmatched() const {
    constexpr qsizetype kMostNames = 60; // an icon set has thousands
    return m_unmatched.isEmpty() ? QString()
                                 : tr("Not needed (%1): %2")
                                       .arg(m_unmatched.size())
                                       .arg(m_unmatched.mid(0, kMostNames).join(tr(", ")));
}

void FolderImportModel::begin(const QUrl& folder) {
    if (m_phase == Writing)
        return;
    m_folder = HostPath(QDir::cleanPath(folder.toLocalFile()).toStdString());
    m_problem.clear();
    m_unmatched.clear();
    setRows({});
    setPhase(Reading);
    m_with.background.run(
        this, [&managers = m_with.managers, path = m_folder] { return review(path, managers); },
        [this, round = ++m_round](Result<Reviewed> reviewed) {
            if (round != m_round || m_phase != Reading)
                return;
            if (reviewed) {
                show(std::move(*reviewed));
                return;
            }
            m_work.refuse(inTheirLanguage(reviewed.error().description));
            setPhase(Closed);
        });
}

Result<FolderImportModel::Reviewed> FolderImportModel::review(const HostPath& folder, Managers& managers) {
    auto pictures = pictureFolderAt(folder);
    if (!pictures)
        return pictures.error();
    const auto apps = managers.apps.loadApplications();
    Reviewed reviewed{.pictures = std::move(*pictures), .matches = {}, .rows = {}};
    reviewed.matches = matchIcons(reviewed.pictures.names, apps, managers.fonts.fontReplacer());
    const auto add = [&](const std::vector<IconMatch>& matches, bool isSure) {
        for (const IconMatch& match : matches) {
            const auto app = std::ranges::find(apps, match.bundleID, &ApplicationInfo::bundleID);
            const auto others =
                std::ranges::count(reviewed.matches.alternatives, match.bundleID, &IconMatch::bundleID);
            reviewed.rows.push_back({.match = match,
                                     .appPath = app == apps.end() ? MacPath() : app->path,
                                     .alternatives = isSure ? static_cast<int>(others) : 0,
                                     .isSure = isSure,
                                     .isTicked = isSure});
        }
    };
    add(reviewed.matches.sure, true);
    add(reviewed.matches.doubtful, false);
    std::ranges::sort(reviewed.rows, [](const FolderImportRow& one, const FolderImportRow& other) {
        if (one.isSure != other.isSure)
            return one.isSure;
        return toQString(one.match.appName).localeAwareCompare(toQString(other.match.appName)) < 0;
    });
    return reviewed;
}

void FolderImportModel::show(Reviewed reviewed) {
    m_pictures = std::move(reviewed.pictures);
    m_alternatives = std::move(reviewed.matches.alternatives);
    m_unmatched = toQStrings(reviewed.matches.unmatched);
    setRows(reviewed.rows);
    m_themeName = folderName();
    m_phase = Review;
    checkName();
}

void FolderImportModel::checkName() {
    const Status free = m_with.managers.themes.checkNewName(m_themeName.toStdString());
    m_problem = free ? QString() : inTheirLanguage(free.error().description);
    Q_EMIT changed();
}

void FolderImportModel::setTicked(int row, bool isTicked) {
    if (row < 0 || row >= rowCount())
        return;
    const auto place = static_cast<std::size_t>(row);
    FolderImportRow ticked = rows()[place];
    ticked.isTicked = isTicked;
    replace(place, ticked);
    Q_EMIT changed();
}

void FolderImportModel::take() {
    if (!canTake() || !m_work.begin(tr("Making “%1”…").arg(m_themeName)))
        return;
    std::vector<IconMatch> chosen;
    for (const FolderImportRow& row : rows()) {
        if (!row.isTicked)
            continue;
        chosen.push_back(row.match);
        if (row.isSure)
            std::ranges::copy_if(m_alternatives, std::back_inserter(chosen),
                                 [&](const IconMatch& other) { return other.bundleID == row.match.bundleID; });
    }
    setPhase(Writing);
    m_with.background.run(
        this,
        [&themes = m_with.managers.themes, pictures = m_pictures, chosen = std::move(chosen),
         name = m_themeName.toStdString()] { return importMatches(pictures, chosen, name, themes); },
        [this](const Result<FolderImportReport>& report) {
            if (!report) {
                m_work.end({});
                m_problem = inTheirLanguage(report.error().description);
                setPhase(Review);
                return;
            }
            const QStringList failed = inTheirLanguage(report->failed);
            setPhase(Closed);
            if (!report->theme) {
                m_work.fail(tr("None of the pictures can be used, so no theme was made."), failed);
                return;
            }
            m_work.end(tr("“%1” is made, with %n icon(s).", "", static_cast<int>(report->taken.size()))
                           .arg(toQString(report->theme->name)),
                       failed);
            Q_EMIT taken(toQString(report->theme->themeID));
        });
}

void FolderImportModel::cancel() {
    if (m_phase != Writing && m_phase != Closed)
        setPhase(Closed);
}

void FolderImportModel::setPhase(Phase phase) {
    m_phase = phase;
    Q_EMIT changed();
}

} // namespace tavrik
