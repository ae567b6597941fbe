#pragma once

#include "model/SettingsFile.h"

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <string_view>

namespace tavrik {

/// The settings file with its cache and the turns of its writers. Every change reads the file anew, so that
/// what others wrote meanwhile is kept; the cache is dropped by a change, never patched. Any thread.
class SettingsStore {
public:
    using Snapshot = std::shared_ptr<const plist::Dictionary>;
    using Edit = std::function<void(plist::Dictionary&)>;
    using Saved = SettingsFile::Saved;

    SettingsStore(FileManager& files, const MacPath& folder) : m_file(files, folder) {}

    /// From now on every change answers `no` and leaves file and cache as they are, and loading repairs
    /// nothing.
    void setReadOnly() { m_isReadOnly = true; }

    bool isReadOnly() const { return m_isReadOnly; }

    /// From memory; the first call after a change reads the file. Never null.
    Snapshot snapshot();
    void dropCache();

    /// From the disk, the cache left alone. An empty dictionary at worst.
    plist::Dictionary load();

    /// What a restart would find in the main file; null when that is nothing.
    Snapshot onDisk() const { return m_file.read(); }

    Saved save(const plist::Dictionary& settings);
    Saved change(const Edit& edit);
    /// Changes the dictionary at a key; what is missing there or of another type starts out empty.
    Saved changeEntries(std::string_view key, const Edit& edit);
    /// Takes an entry out of the dictionary at a key; fine when there is none.
    Saved removeEntry(std::string_view subkey, std::string_view key);

private:
    /// Held from reading the file to having written it, so that of two changes none loses the other. May be
    /// taken while the cache's lock is held, never the other way round.
    std::mutex m_writeTurn;
    SettingsFile m_file;

    std::atomic<bool> m_isReadOnly = false;

    std::mutex m_cacheLock;
    Snapshot m_cache; ///< null when not loaded
};

/// The entry at a key of a dictionary within a dictionary; null when there is none.
const plist::Value* entryAt(const plist::Dictionary& root, std::string_view key, std::string_view subkey);

/// The dictionary at a key; null when nothing or something else is there.
const plist::Dictionary* dictionaryAt(const plist::Dictionary& parent, std::string_view key);

/// The same to be changed: what is missing or of another type is replaced by an empty one.
plist::Dictionary& ensureDictionaryAt(plist::Dictionary& parent, std::string_view key);

} // namespace tavrik
