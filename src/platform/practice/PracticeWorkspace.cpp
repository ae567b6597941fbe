#include "platform/practice/PracticeWorkspace.h"

#include "platform/Clock.h"
#include "platform/FileManager.h"
#include "platform/Icns.h"
#include "platform/practice/BundleIcon.h"
#include "platform/practice/CustomIcon.h"
#include "platform/practice/Layout.h"
#include "platform/practice/PlainIcon.h"
#include "platform/practice/PropertyListFile.h"

namespace tavrik::practice {

namespace {

constexpr std::string_view kBundleIDKey = "bundleID";
constexpr std::string_view kNameKey = "name";

PlainIcon plainIconFor(const FileManager& files, const MacPath& path) {
    if (path.extension() == "app")
        return PlainIcon::application;
    const auto attributes = files.attributes(path);
    return attributes && attributes->type == FileType::folder ? PlainIcon::folder : PlainIcon::document;
}

} // namespace

PracticeWorkspace::PracticeWorkspace(FileManager& files, const Clock& clock) : m_files(files), m_clock(clock) {}

QImage PracticeWorkspace::icon(const MacPath& path) const {
    QImage picture;
    if (const auto custom = readCustomIcon(m_files, path))
        picture = icns::largestImage(*custom);
    if (picture.isNull())
        picture = bundleIcon(m_files, path);
    return picture.isNull() ? drawPlainIcon(plainIconFor(m_files, path)) : picture;
}

bool PracticeWorkspace::setIcon(const MacPath& path, const QImage& icon) {
    const std::scoped_lock lock(m_changes);
    const Bytes container = icns::encode(icon);
    if (container.empty() || !writeCustomIcon(m_files, path, container))
        return false;
    stampFolder(path);
    return true;
}

bool PracticeWorkspace::clearIcon(const MacPath& path) {
    const std::scoped_lock lock(m_changes);
    const bool had = readCustomIcon(m_files, path).has_value();
    if (!removeCustomIcon(m_files, path))
        return false;
    if (had)
        stampFolder(path);
    return true;
}

std::vector<RunningApplication> PracticeWorkspace::runningApplications() const {
    std::vector<RunningApplication> running;
    const auto list = readPropertyList(m_files, kRunningApplications);
    const auto* entries = list && *list ? (*list)->as<plist::Array>() : nullptr;
    if (!entries)
        return running;
    for (const plist::Value& entry : *entries) {
        const auto* bundleID = entry.find<std::string>(kBundleIDKey);
        const auto* name = entry.find<std::string>(kNameKey);
        if (bundleID && name)
            running.push_back({*bundleID, *name});
    }
    return running;
}

bool PracticeWorkspace::forceTerminate(const std::string& bundleID) {
    const std::scoped_lock lock(m_changes);
    auto list = readPropertyList(m_files, kRunningApplications);
    if (!list)
        return false;
    auto* entries = *list ? (*list)->as<plist::Array>() : nullptr;
    if (!entries)
        return true;
    const auto ended = std::erase_if(*entries, [&](const plist::Value& entry) {
        const auto* id = entry.find<std::string>(kBundleIDKey);
        return id && *id == bundleID;
    });
    return ended == 0 || writePropertyList(m_files, kRunningApplications, **list);
}

void PracticeWorkspace::stampFolder(const MacPath& path) {
    const auto attributes = m_files.attributes(path);
    if (attributes && attributes->type == FileType::folder)
        ignoreFailure(m_files.setModified(path, m_clock.now()));
}

} // namespace tavrik::practice
