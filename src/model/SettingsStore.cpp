#include "model/SettingsStore.h"

namespace tavrik {

SettingsStore::Snapshot SettingsStore::snapshot() {
    const std::lock_guard lock(m_cacheLock);
    if (!m_cache) {
        // A good file is read beside a running write; only its repair takes a turn.
        m_cache = m_file.read();
        if (!m_cache)
            m_cache = std::make_shared<const plist::Dictionary>(load());
    }
    return m_cache;
}

void SettingsStore::dropCache() {
    const std::lock_guard lock(m_cacheLock);
    m_cache.reset();
}

plist::Dictionary SettingsStore::load() {
    const std::lock_guard turn(m_writeTurn);
    return m_file.load(m_isReadOnly ? SettingsFile::Repair::no : SettingsFile::Repair::yes);
}

SettingsStore::Saved SettingsStore::save(const plist::Dictionary& settings) {
    if (m_isReadOnly)
        return Saved::no;
    auto saved = Saved::no;
    {
        const std::lock_guard turn(m_writeTurn);
        saved = m_file.save(settings);
    }
    dropCache();
    return saved;
}

SettingsStore::Saved SettingsStore::change(const Edit& edit) {
    if (m_isReadOnly)
        return Saved::no;
    auto saved = Saved::no;
    {
        const std::lock_guard turn(m_writeTurn);
        plist::Dictionary settings = m_file.load();
        edit(settings);
        saved = m_file.save(std::move(settings));
    }
    dropCache();
    return saved;
}

SettingsStore::Saved SettingsStore::changeEntries(std::string_view key, const Edit& edit) {
    return change([&](plist::Dictionary& root) { edit(ensureDictionaryAt(root, key)); });
}

SettingsStore::Saved SettingsStore::removeEntry(std::string_view subkey, std::string_view key) {
    return change([&](plist::Dictionary& root) {
        if (dictionaryAt(root, key))
            ensureDictionaryAt(root, key).erase(std::string(subkey));
    });
}

const plist::Value* entryAt(const plist::Dictionary& root, std::string_view key, std::string_view subkey) {
    const auto* entries = dictionaryAt(root, key);
    if (!entries)
        return nullptr;
    const auto found = entries->find(subkey);
    return found == entries->end() ? nullptr : &found->second;
}

const plist::Dictionary* dictionaryAt(const plist::Dictionary& parent, std::string_view key) {
    const auto found = parent.find(key);
    return found == parent.end() ? nullptr : found->second.as<plist::Dictionary>();
}

plist::Dictionary& ensureDictionaryAt(plist::Dictionary& parent, std::string_view key) {
    plist::Value& value = parent[std::string(key)];
    if (!value.as<plist::Dictionary>())
        value = plist::Dictionary{};
    return *value.as<plist::Dictionary>();
}

} // namespace tavrik
