#include "ui/models/BackupsPage.h"

#include "app/MacHost.h"
#include "app/Managers.h"
#include "platform/Clock.h"
#include "platform/Mac.h"
#include "ui/models/Amounts.h"
#include "ui/models/Background.h"
#include "ui/models/CoreWords.h"
#include "ui/models/EndNotice.h"
#include "ui/models/Text.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace tavrik {

namespace {

constexpr int kMostKept = 999;
constexpr std::uint64_t kKilobyte = 1000;

bool isOriginal(const BackupListItem& item) {
    return item.url.name() == BackupFolder::kOriginalState;
}

/// The one that is kept for good first, and then the newest.
std::vector<BackupListItem> inOrderOfTheList(std::vector<BackupListItem> items) {
    std::ranges::reverse(items);
    std::ranges::stable_partition(items, isOriginal);
    return items;
}

BackupsModel::Row rowOf(const BackupListItem& item, Date now) {
    const QString taken = momentText(item.date, now);
    const QString size = sizeText(static_cast<std::uint64_t>(item.sizeInKB) * kKilobyte);
    if (isOriginal(item))
        return {.id = item.id,
                .title = BackupsPage::tr("Original State"),
                .remark = BackupsPage::tr("%1, %2").arg(taken, size),
                .group = BackupsPage::tr("Kept for good"),
                .isOriginal = true};
    return {.id = item.id,
            .title = taken,
            .remark = size,
            .group = BackupsPage::tr("The newest first"),
            .isOriginal = false};
}

/// Puts the backup back and restarts the Dock, which writes when it starts: so not before, and not after a
/// failure. The name of the backup of what was there; empty when there could be none.
Result<std::string> restored(Managers& managers, MacHost& host, const MacPath& backup) {
    const std::vector<MacPath> earlier = managers.backups.listBackups();
    if (const Status done = managers.backups.restoreBackup(backup); !done)
        return done.error();
    host.startSession();
    managers.launchpad.restartDock();
    const std::vector<MacPath> now = managers.backups.listBackups();
    const bool isNew = !now.empty() && std::ranges::find(earlier, now.back()) == earlier.end();
    return isNew ? now.back().stem() : std::string();
}

} // namespace

BackupsPage::BackupsPage(const UiServices& with) : m_with(with), m_detail(with), m_work(with) {
    for (const std::string_view name : {kReloadApplicationsAfterApply, kReloadApplicationsAfterBackupRestore}) {
        m_observations.push_back(with.managers.notificationCenter.observe(std::string(name), [this] {
            if (m_isLoaded)
                refresh();
        }));
    }
}

QString BackupsPage::currentTitle() const {
    const int row = currentRow();
    return row < 0 ? QString() : m_backups.rows()[static_cast<std::size_t>(row)].title;
}

QString BackupsPage::currentRemark() const {
    const int row = currentRow();
    return row < 0 ? QString() : m_backups.rows()[static_cast<std::size_t>(row)].remark;
}

std::optional<BackupListItem> BackupsPage::current() const {
    const auto item = std::ranges::find(m_items, m_current, &BackupListItem::id);
    return item == m_items.end() ? std::nullopt : std::optional(*item);
}

void BackupsPage::refresh() {
    m_with.background.run(
        this,
        [&managers = m_with.managers] {
            return std::pair(managers.backups.readItems(), managers.settings.getBackupRetentionCount());
        },
        [this](const std::pair<Result<Items>, std::int64_t>& found) {
            take(found.first, static_cast<int>(std::clamp<std::int64_t>(found.second, 1, kMostKept)));
        });
}

void BackupsPage::take(const Result<Items>& items, int keepCount) {
    m_isLoaded = true;
    m_keepCount = keepCount;
    m_problem = items ? QString() : inTheirLanguage(items.error().description);
    m_items = items ? inOrderOfTheList(*items) : Items();
    std::vector<BackupsModel::Row> rows;
    for (const BackupListItem& item : m_items)
        rows.push_back(rowOf(item, m_with.host.mac().clock.now()));
    m_backups.show(rows);
    if (!current())
        m_current = m_items.size() > 1 ? m_items[1].id : m_items.empty() ? std::string() : m_items[0].id;
    m_detail.show(current() ? std::optional(current()->url) : std::nullopt);
    Q_EMIT changed();
}

void BackupsPage::choose(int row) {
    if (row < 0 || row >= m_backups.rowCount() || row == currentRow())
        return;
    m_current = m_items[static_cast<std::size_t>(row)].id;
    m_detail.show(current()->url);
    m_work.dismiss();
    Q_EMIT changed();
}

void BackupsPage::setKeepCount(int count) {
    const int kept = std::clamp(count, 1, kMostKept);
    if (kept == m_keepCount)
        return;
    m_keepCount = kept;
    Q_EMIT changed();
    m_with.background.run(
        this,
        [&settings = m_with.managers.settings, kept] {
            settings.setBackupRetentionCount(kept);
            return settings.getBackupRetentionCount() == kept;
        },
        [this](bool isSaved) {
            if (isSaved)
                return;
            m_work.fail(tr("The number of backups to keep could not be saved."));
            refresh();
        });
}

QString BackupsPage::keepNote() const {
    if (m_items.empty())
        return tr("The first backup is kept for good.");
    const auto dated = static_cast<int>(std::ranges::count_if(m_items, std::not_fn(isOriginal)));
    const int excess = dated + 1 - m_keepCount;
    return excess > 0 ? tr("The next backup deletes the oldest %n.", nullptr, excess)
                      : tr("Besides the Original State.");
}

void BackupsPage::backUpNow() {
    m_work.run(
        tr("Taking a backup…"), PageWork::Beside::edits,
        [&managers = m_with.managers] { return managers.backups.createBackup(); },
        [this](const Result<MacPath>& backup) {
            if (!backup)
                return m_work.fail(inTheirLanguage(backup.error().description));
            m_current = backup->stem();
            m_work.tell(tr("The backup is taken, and was read back."));
            refresh();
        });
}

void BackupsPage::verify() {
    const auto backup = current();
    if (!backup)
        return;
    m_work.run(
        tr("Reading the backup…"), PageWork::Beside::edits,
        [&managers = m_with.managers, url = backup->url] {
            const BackupReading reading = managers.backups.readBackup(url);
            const auto* const fault = std::get_if<BackupFault>(&reading);
            return fault ? inWords(*fault) : std::string();
        },
        [this](const std::string& fault) {
            if (fault.empty())
                m_work.tell(tr("This backup is whole and can be restored."));
            else
                m_work.fail(inTheirLanguage(fault));
        });
}

void BackupsPage::restore() {
    const auto backup = current();
    if (!backup)
        return;
    m_work.run(
        tr("Restoring Launchpad and the Dock…"), PageWork::Beside::nothing,
        [&managers = m_with.managers, &host = m_with.host, url = backup->url] {
            return restored(managers, host, url);
        },
        [this](const Result<std::string>& before) {
            refresh();
            if (!before)
                m_work.fail(inTheirLanguage(before.error().description));
            else if (before->empty())
                m_work.tell(tr("Launchpad and the Dock are as in this backup. What was there before could not "
                               "be backed up: its files were missing or damaged."));
            else
                m_work.tell(tr("Launchpad and the Dock are as in this backup. What was there before is the "
                               "newest backup now."));
            m_with.endNotice.tell(before ? tr("Your backup is restored") : tr("Your backup was not restored"),
                                  m_work.remark());
        });
}

} // namespace tavrik
