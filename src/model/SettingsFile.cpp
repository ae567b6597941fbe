#include "model/SettingsFile.h"

#include "platform/AtomicFile.h"
#include "platform/FileManager.h"
#include "platform/Log.h"

#include <cerrno>

namespace tavrik {

namespace {

/// An empty settings file cannot be told from a lost one, so it counts as bad.
std::optional<plist::Dictionary> settingsIn(ByteView data) {
    auto root = plist::parse(data);
    if (!root)
        return std::nullopt;
    auto* dictionary = root->as<plist::Dictionary>();
    if (!dictionary || dictionary->empty())
        return std::nullopt;
    return std::move(*dictionary);
}

} // namespace

SettingsFile::SettingsFile(FileManager& files, const MacPath& folder)
    : m_files(files),
      m_main(folder / "AppSettings.plist"),
      m_backup(folder / "AppSettings.backup"),
      m_temporary(folder / "AppSettings.tmp") {}

SettingsFile::Content SettingsFile::read() const {
    auto data = m_files.read(m_main);
    return data ? contentOf(std::move(*data)) : nullptr;
}

/// Null for what holds no settings. Parsing is by far the most that a change of large settings costs, and each
/// change looks at the same file several times: before it, to see that it arrived, and for the cache.
SettingsFile::Content SettingsFile::contentOf(Bytes data) const {
    {
        const std::lock_guard lock(m_parsedLock);
        if (m_parsed.content && m_parsed.data == data)
            return m_parsed.content;
    }
    auto settings = settingsIn(data);
    if (!settings)
        return nullptr;
    auto content = std::make_shared<const plist::Dictionary>(std::move(*settings));
    const std::lock_guard lock(m_parsedLock);
    m_parsed = {std::move(data), content};
    return content;
}

plist::Dictionary SettingsFile::load(Repair repair) {
    m_mainUnreadable.reset();
    m_backupIsTheGoodOne = false;
    auto data = m_files.read(m_main);
    if (data) {
        if (const Content content = contentOf(std::move(*data)))
            return *content;
    } else if (data.error().code != ENOENT) {
        m_mainUnreadable = data.error();
    }

    log("WARNING: Main settings file failed to load, trying backup");
    const auto backup = m_files.read(m_backup);
    if (backup) {
        if (auto settings = settingsIn(*backup)) {
            if (repair == Repair::no)
                return std::move(*settings);
            if (!m_mainUnreadable)
                m_backupIsTheGoodOne = !writeAtomically(m_files, m_main, *backup);
            log("Restored settings from backup");
            return std::move(*settings);
        }
    }
    log("WARNING: No valid settings found, returning empty");
    return {};
}

SettingsFile::Saved SettingsFile::save(plist::Dictionary settings) {
    if (settings.empty()) {
        log("WARNING: Attempting to save empty settings - aborting to prevent data loss");
        return Saved::no;
    }
    if (m_mainUnreadable) {
        log("Failed to save settings: " + m_mainUnreadable->description);
        return Saved::no;
    }

    const bool backupIsCurrent = refreshBackup();
    const auto saved = replaceWith(std::move(settings));
    if (saved) {
        m_backupIsTheGoodOne = false;
        return *saved;
    }

    log("Failed to save settings: " + saved.error().description);
    if (backupIsCurrent && m_files.exists(m_backup)) {
        if (const auto backup = m_files.read(m_backup))
            ignoreFailure(writeAtomically(m_files, m_main, *backup));
        log("Restored settings from backup");
    }
    ignoreFailure(m_files.remove(m_temporary));
    return Saved::no;
}

/// True when the backup may stand in for the main file: it was copied from it just now, or the main file is
/// missing or known to be bad. A backup of an earlier generation, left because it could not be deleted, may
/// not.
bool SettingsFile::refreshBackup() {
    if (m_backupIsTheGoodOne || !m_files.exists(m_main))
        return true;
    ignoreFailure(m_files.remove(m_backup));
    return static_cast<bool>(m_files.copy(m_main, m_backup));
}

Result<SettingsFile::Saved> SettingsFile::replaceWith(plist::Dictionary settings) {
    const auto data = plist::serialize(plist::Value(std::move(settings)), plist::Format::xml);
    if (!data)
        return data.error();
    // One left by a kill; removing it, rather than writing over it, also never follows a link.
    ignoreFailure(m_files.remove(m_temporary));
    if (const auto created = m_files.create(m_temporary, *data); !created)
        return created.error();
    const bool flushed = static_cast<bool>(m_files.flush(m_temporary));
    if (const auto replaced = m_files.replace(m_main, m_temporary); !replaced)
        return replaced.error();
    return flushed ? Saved::yes : Saved::unflushed;
}

} // namespace tavrik
