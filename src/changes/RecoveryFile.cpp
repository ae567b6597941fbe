#include "changes/RecoveryFile.h"

#include "changes/StagedChangesCoding.h"
#include "platform/AtomicFile.h"
#include "platform/FileManager.h"
#include "platform/Log.h"
#include "platform/PlainFolders.h"

#include <algorithm>
#include <cerrno>

namespace tavrik {

namespace {

constexpr std::string_view kDamagedPrefix = "pendingChanges.damaged";

} // namespace

RecoveryFile::RecoveryFile(FileManager& files, const MacPath& folder)
    : m_files(files),
      m_folder(folder),
      m_path(folder / "pendingChanges.plist") {}

bool RecoveryFile::exists() const {
    return bool(m_files.attributes(m_path, Links::dontFollow));
}

Result<Bytes> RecoveryFile::read() const {
    if (const Status folder = checkFolder(); !folder)
        return folder.error();
    const auto attributes = m_files.attributes(m_path, Links::dontFollow);
    if (!attributes)
        return attributes.error();
    if (attributes->type != FileType::file)
        return Error{m_path.string() + " is no plain file"};
    return m_files.read(m_path, kRecoveryFileLimits.bytes);
}

Result<plist::Dictionary> RecoveryFile::parse(const Bytes& content) {
    auto root = plist::parse(content, kRecoveryFileLimits);
    if (!root)
        return root.error();
    auto* dictionary = root->as<plist::Dictionary>();
    if (!dictionary)
        return Error{"The root is no dictionary"};
    return std::move(*dictionary);
}

Result<plist::Dictionary> RecoveryFile::load() const {
    const auto content = read();
    return content ? parse(*content) : Result<plist::Dictionary>(content.error());
}

bool RecoveryFile::write(const plist::Dictionary& root) {
    log("   Writing to: " + m_path.string());
    Status written = createPlainFolder(m_files, m_folder.parent(), m_folder);
    if (written) {
        const auto content = plist::serialize(root, plist::Format::xml, kRecoveryFileLimits);
        written = content ? writeAtomically(m_files, m_path, *content) : Status(content.error());
    }
    if (!written) {
        log("   ❌ Failed to write file: " + written.error().description);
        return false;
    }
    const auto attributes = m_files.attributes(m_path, Links::dontFollow);
    if (attributes)
        log("   ✅ File written successfully (" + std::to_string(attributes->size) + " bytes)");
    else
        log("   ❌ File doesn't exist after writing!");
    return bool(attributes);
}

Status RecoveryFile::remove() {
    if (Status folder = checkFolder(); !folder)
        return folder;
    if (Status removed = m_files.remove(m_path); !removed)
        return removed.error().code == ENOENT ? Status(Done{}) : removed;
    return m_files.flush(m_folder);
}

Status RecoveryFile::putAside() {
    if (Status folder = checkFolder(); !folder)
        return folder;
    const auto names = m_files.list(m_folder);
    if (!names)
        return names.error();
    std::string name = std::string(kDamagedPrefix) + ".plist";
    for (int number = 2; std::ranges::binary_search(*names, name); ++number)
        name = std::string(kDamagedPrefix) + " " + std::to_string(number) + ".plist";
    if (Status moved = m_files.move(m_path, m_folder / name); !moved)
        return moved;
    log("⚠️ The recovery file cannot be read; it was put aside as " + (m_folder / name).string());
    return m_files.flush(m_folder);
}

bool RecoveryFile::hasOnePutAside() const {
    const auto names = m_files.list(m_folder);
    return !names ||
           std::ranges::any_of(*names, [](const auto& name) { return name.starts_with(kDamagedPrefix); });
}

Status RecoveryFile::checkFolder() const {
    return checkPlainFolders(m_files, m_folder.parent(), m_folder);
}

} // namespace tavrik
