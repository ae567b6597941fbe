#include "cli/Companion.h"

#include "app/VersionGate.h"
#include "cli/AppLookup.h"
#include "model/catalogue/Refusal.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "platform/Machine.h"

#include <cerrno>
#include <cstdio>

namespace tavrik {

namespace {

void printLine(std::FILE* stream, std::string_view line) {
    std::fwrite(line.data(), 1, line.size(), stream);
    std::fputc('\n', stream);
    std::fflush(stream);
}

} // namespace

ExitCode Companion::open(Access access) {
    auto host = m_opener(m_alerts);
    if (!host)
        return fail(host.error().description);
    m_host = std::move(*host);
    if (const SystemVersion version = m_host->mac().machine.systemVersion();
        access == Access::writing && !isSupported(version))
        return refuse("Tavrik does not know macOS " + textOf(version) +
                      " and changes nothing on it. macOS 15 and earlier are supported.");
    if (access != Access::looking) {
        if (const ExitCode locked = takeLock(access); locked != ExitCode::done)
            return locked;
    }
    // Already the managers' first look must repair nothing that another Tavrik may be writing.
    const auto use = m_lock ? SettingsManager::Use::writing : SettingsManager::Use::looking;
    onMain([&] { m_managers.emplace(m_host->mac(), use); });
    if (access == Access::writing)
        m_managers->backups.removeLeftovers();
    return ExitCode::done;
}

ExitCode Companion::takeLock(Access access) {
    Mac& mac = m_host->mac();
    const MacPath folder = supportFolder(mac.volume);
    ignoreFailure(mac.files.createFolder(folder)); // the lock says it better
    auto lock = SupportFolderLock::take(mac, folder, kName);
    if (lock)
        m_lock.emplace(std::move(*lock));
    else if (access == Access::writing)
        return lock.error().code == EWOULDBLOCK ? refuse(lock.error().description)
                                                : fail(lock.error().description);
    return ExitCode::done;
}

std::variant<ApplicationInfo, ExitCode> Companion::findRestylable(const std::string& bundleID) {
    Result<ApplicationInfo> app = findApp(m_managers->apps.loadApplications(), bundleID);
    if (!app)
        return fail(app.error().description);
    if (const std::string why = refusalOf(*app, m_managers->unsupported.contains(bundleID)); !why.empty())
        return refuse(why);
    return std::move(*app);
}

void Companion::say(std::string_view line) const {
    printLine(stdout, line);
}

void Companion::complain(std::string_view sentence) const {
    printLine(stderr, sentence);
}

ExitCode Companion::fail(std::string_view sentence) const {
    complain(sentence);
    return ExitCode::failed;
}

ExitCode Companion::refuse(std::string_view sentence) const {
    complain(sentence);
    return ExitCode::refused;
}

} // namespace tavrik
