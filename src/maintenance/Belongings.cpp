#include "maintenance/Belongings.h"

#include "backups/BackupManager.h"
#include "changes/apply/ApplyServices.h"
#include "model/SettingsManager.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "themes/ThemeManager.h"

#include <string>
#include <vector>

namespace tavrik {

namespace {

/// Of everything below; links count as themselves.
std::uint64_t sizeOf(const FileManager& files, const MacPath& path) {
    const auto attributes = files.attributes(path, Links::dontFollow);
    if (!attributes)
        return 0;
    if (attributes->type != FileType::folder)
        return attributes->size;
    std::uint64_t bytes = 0;
    const auto names = files.list(path);
    for (const std::string& name : names ? *names : std::vector<std::string>())
        bytes += sizeOf(files, path / name);
    return bytes;
}

} // namespace

Belongings readBelongings(const ApplyServices& with) {
    const FileManager& files = with.mac.files;
    const MacPath& folder = with.settings.appSupportURL();
    return {.iconBytes = sizeOf(files, with.settings.iconCacheURL()),
            .themes = with.themes.library().load().size(),
            .themeBytes = sizeOf(files, with.themes.themesDirectory()),
            .backups = with.backups.listBackups().size(),
            .backupBytes = sizeOf(files, with.backups.backupsBaseURL()),
            .folder = folder,
            .bytes = sizeOf(files, folder)};
}

} // namespace tavrik
