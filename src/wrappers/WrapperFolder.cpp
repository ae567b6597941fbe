#include "wrappers/WrapperFolder.h"

#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/Mac.h"
#include "platform/PathComponent.h"
#include "platform/PathRules.h"
#include "platform/PropertyList.h"
#include "platform/Tools.h"
#include "platform/Volume.h"

#include <QString>

#include <algorithm>

namespace tavrik {

namespace {

bool isSymbolicLink(const FileManager& files, const MacPath& path) {
    const auto attributes = files.attributes(path, Links::dontFollow);
    return attributes && attributes->type == FileType::symbolicLink;
}

} // namespace

bool WrapperFolder::isLinked(const std::string& name) {
    return name != "Icon\r" && !name.starts_with("._");
}

WrapperFolder::WrapperFolder(Mac& mac)
    : m_mac(mac),
      m_path(wrapperFolder(mac.volume.home())),
      m_warning(m_path / kWarning) {}

MacPath WrapperFolder::wrapperOf(const MacPath& original) const {
    const std::string name = original.stem() + ".app";
    return !name.starts_with('.') && isSafePathComponent(name) ? m_path / name : MacPath();
}

bool WrapperFolder::isLink(const MacPath& wrapper) const {
    return isSymbolicLink(m_mac.files, m_path) || isSymbolicLink(m_mac.files, wrapper);
}

bool WrapperFolder::exists(const MacPath& wrapper) const {
    return m_mac.files.exists(wrapper);
}

bool WrapperFolder::belongsToAnother(const MacPath& wrapper, const std::string& bundleID) const {
    const auto content = m_mac.files.read(wrapper / "Contents/Info.plist");
    const auto info = content ? plist::parse(*content) : Result<plist::Value>(content.error());
    const auto* identifier = info ? info->find<std::string>("CFBundleIdentifier") : nullptr;
    return identifier && QString::fromStdString(*identifier)
                                 .trimmed()
                                 .compare(QString::fromStdString(bundleID), Qt::CaseInsensitive) != 0;
}

bool WrapperFolder::create() {
    const Status created = m_mac.files.createFolder(m_path);
    if (!created)
        log("Failed to create Tavrik directory: " + created.error().description);
    return bool(created);
}

bool WrapperFolder::build(const MacPath& wrapper, const MacPath& original) {
    if (!create())
        return false;
    const auto names = m_mac.files.list(original);
    if (!names) {
        log("ERROR: Failed to list the original app: " + names.error().description);
        return false;
    }
    if (const Status made = m_mac.files.createFolder(wrapper); !made) {
        log("ERROR creating tavrik app directory: " + made.error().description);
        return false;
    }
    for (const std::string& name : *names) {
        if (!isLinked(name))
            continue;
        const auto linked =
            m_mac.tools.run(MacPath("/bin/ln"), {"-s", (original / name).string(), (wrapper / name).string()});
        if (!linked || linked->exitStatus != 0)
            log("WARNING: Failed to create symlink for " + name);
    }
    log("Created tavrik app at: " + wrapper.string());
    return true;
}

Status WrapperFolder::remove(const MacPath& wrapper) {
    return exists(wrapper) ? m_mac.files.remove(wrapper) : Status(Done{});
}

void WrapperFolder::addWarning() {
    if (m_mac.files.exists(m_warning))
        return;
    const MacPath text = m_mac.volume.resource("Warning.rtf");
    if (!m_mac.files.exists(text)) {
        log("  WARNING: Warning.rtf not found in bundle");
        return;
    }
    if (const Status copied = m_mac.files.copy(text, m_warning); !copied) {
        log("  WARNING: Failed to copy RTF file: " + copied.error().description);
        return;
    }
    log("  Added warning RTF: " + m_warning.string());
}

void WrapperFolder::removeWarning(const MacPath& lastWrapper) {
    if (!m_mac.files.exists(m_warning))
        return;
    const auto names = m_mac.files.list(m_path);
    const auto isOther = [&](const std::string& name) {
        return name.ends_with(".app") && isLinked(name) && name != lastWrapper.name();
    };
    if (!names || std::any_of(names->begin(), names->end(), isOther))
        return;
    if (const Status removed = m_mac.files.remove(m_warning); !removed) {
        log("  WARNING: Failed to remove RTF file: " + removed.error().description);
        return;
    }
    log("  Removed warning RTF: " + m_warning.string());
}

} // namespace tavrik
