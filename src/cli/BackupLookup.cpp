#include "cli/BackupLookup.h"

#include "cli/Companion.h"
#include "cli/NearestNames.h"

#include <QDateTime>

#include <algorithm>
#include <cmath>
#include <functional>

namespace tavrik {

Result<std::vector<BackupListItem>> listedBackups(Companion& companion) {
    auto backups = companion.managers().backups.readItems();
    if (backups) {
        std::ranges::reverse(*backups);
        std::ranges::stable_partition(*backups, std::not_fn(isOriginalState));
    }
    return backups;
}

Result<BackupListItem> findBackup(Companion& companion, const std::string& name) {
    const auto backups = listedBackups(companion);
    if (!backups)
        return backups.error();
    const Result<MacPath> file = companion.managers().backups.find(name);
    if (file) {
        const auto item = std::ranges::find(*backups, *file, &BackupListItem::url);
        return item != backups->end() ? Result<BackupListItem>(*item)
                                      : Error{"The backup \"" + name + "\" was taken away a moment ago."};
    }
    std::vector<NearName> names;
    for (const BackupListItem& backup : *backups) {
        const bool isBeginning = !name.empty() && backup.id.starts_with(name);
        names.push_back({isBeginning ? 1 : nameDistance(name, backup.id), "\"" + backup.id + "\""});
    }
    std::string hint = hintOf(std::move(names), name);
    if (hint.empty())
        hint = backups->empty() ? " There is none yet; \"tavrikctl backup create\" takes one."
                                : " \"tavrikctl backup list\" shows what there is.";
    return Error{file.error().description + hint};
}

bool isOriginalState(const BackupListItem& backup) {
    return backup.url.name() == BackupFolder::kOriginalState;
}

std::string typed(const std::string& name) {
    const bool isPlain = std::ranges::all_of(name, [](char c) {
        return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '-' ||
               c == '_' || c == '.';
    });
    if (isPlain)
        return name;
    std::string text = "'";
    for (const char c : name)
        text += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return text + "'";
}

std::string localText(Date date) {
    const auto seconds = static_cast<qint64>(std::floor(toUnix(date)));
    return QDateTime::fromSecsSinceEpoch(seconds).toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")).toStdString();
}

std::string sizeText(std::int64_t kilobytes) {
    if (kilobytes < 1000)
        return std::to_string(kilobytes) + " KB";
    return QString::number(static_cast<double>(kilobytes) / 1000, 'f', 1).toStdString() + " MB";
}

} // namespace tavrik
