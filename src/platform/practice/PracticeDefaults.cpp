#include "platform/practice/PracticeDefaults.h"

#include "platform/FileManager.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PropertyListFile.h"

#include <cerrno>

namespace tavrik::practice {

namespace {

MacPath preferencesFile() {
    return kPreferencesFolder / (std::string(kBundleIdentifier) + ".plist");
}

} // namespace

PracticeDefaults::PracticeDefaults(FileManager& files) : m_files(files) {}

std::optional<plist::Value> PracticeDefaults::value(std::string_view key) const {
    const std::scoped_lock lock(m_mutex);
    const auto all = read();
    if (!all)
        return std::nullopt;
    const auto entry = all->find(key);
    return entry == all->end() ? std::nullopt : std::optional(entry->second);
}

Status PracticeDefaults::set(std::string_view key, std::optional<plist::Value> value) {
    const std::scoped_lock lock(m_mutex);
    auto all = read();
    if (!all)
        return all.error();
    if (value)
        all->insert_or_assign(std::string(key), std::move(*value));
    else if (all->erase(std::string(key)) == 0)
        return Done{};
    if (auto made = m_files.createFolder(kPreferencesFolder); !made)
        return made;
    return writePropertyList(m_files, preferencesFile(), std::move(*all));
}

Status PracticeDefaults::removeAll() {
    const std::scoped_lock lock(m_mutex);
    const auto standing = m_files.attributes(preferencesFile(), Links::dontFollow);
    if (!standing && standing.error().code == ENOENT)
        return Done{};
    if (!standing)
        return standing.error();
    if (standing->type != FileType::file)
        return Error{preferencesFile().string() + " is no plain file", EINVAL};
    return m_files.remove(preferencesFile());
}

void PracticeDefaults::flushDockDomain() {
    // No preferences service stands between a practice Mac's programs and the files: nothing is ever pending.
}

Result<plist::Dictionary> PracticeDefaults::read() const {
    const auto all = readPropertyList(m_files, preferencesFile());
    if (!all)
        return all.error();
    if (!*all)
        return plist::Dictionary();
    if (const auto* entries = (*all)->as<plist::Dictionary>())
        return *entries;
    return Error{preferencesFile().string() + " holds no dictionary."};
}

} // namespace tavrik::practice
