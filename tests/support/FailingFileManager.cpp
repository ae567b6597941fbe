#include "support/FailingFileManager.h"

#include <memory>
#include <system_error>
#include <utility>

namespace tavrik::test {

void FailingFileManager::setRule(Rule rule) {
    const std::lock_guard lock(m_mutex);
    m_rule = std::move(rule);
}

void FailingFileManager::failAt(std::size_t number, int code, Times times) {
    const std::size_t wanted = count() + number;
    setRule([=](const FileOperation& operation) -> std::optional<int> {
        const bool hit = operation.number == wanted || (times == Times::forGood && operation.number > wanted);
        return hit ? std::optional(code) : std::nullopt;
    });
}

void FailingFileManager::failOn(std::string name, MacPath path, int code, Times times) {
    setRule([=, left = std::make_shared<bool>(true)](const FileOperation& operation) -> std::optional<int> {
        if (operation.name != name || (!path.empty() && operation.path != path) || !*left)
            return std::nullopt;
        *left = times == Times::forGood;
        return code;
    });
}

std::vector<std::string> FailingFileManager::journal() const {
    const std::lock_guard lock(m_mutex);
    return m_journal;
}

std::size_t FailingFileManager::count() const {
    const std::lock_guard lock(m_mutex);
    return m_journal.size();
}

void FailingFileManager::forget() {
    const std::lock_guard lock(m_mutex);
    m_journal.clear();
}

std::optional<Error> FailingFileManager::fault(const char* name, const MacPath& path) const {
    FileOperation operation{.number = 0, .name = name, .path = path};
    Rule rule;
    {
        const std::lock_guard lock(m_mutex);
        m_journal.push_back(operation.name + " " + path.string());
        operation.number = m_journal.size();
        rule = m_rule;
    }
    const auto code = rule ? rule(operation) : std::nullopt;
    if (!code)
        return std::nullopt;
    return Error{path.string() + ": " + std::generic_category().message(*code), *code};
}

bool FailingFileManager::exists(const MacPath& path) const {
    return !fault("exists", path) && m_files.exists(path);
}

Result<FileAttributes> FailingFileManager::attributes(const MacPath& path, Links links) const {
    if (auto failed = fault("attributes", path))
        return *failed;
    return m_files.attributes(path, links);
}

Result<std::vector<std::string>> FailingFileManager::list(const MacPath& folder) const {
    if (auto failed = fault("list", folder))
        return *failed;
    return m_files.list(folder);
}

Result<Bytes> FailingFileManager::read(const MacPath& file, std::size_t most) const {
    if (auto failed = fault("read", file))
        return *failed;
    return m_files.read(file, most);
}

Status FailingFileManager::write(const MacPath& file, ByteView data) {
    if (auto failed = fault("write", file))
        return *failed;
    return m_files.write(file, data);
}

Status FailingFileManager::create(const MacPath& file, ByteView data) {
    if (auto failed = fault("create", file))
        return *failed;
    return m_files.create(file, data);
}

Status FailingFileManager::flush(const MacPath& path) {
    if (auto failed = fault("flush", path))
        return *failed;
    return m_files.flush(path);
}

Status FailingFileManager::copy(const MacPath& from, const MacPath& to) {
    if (auto failed = fault("copy", to))
        return *failed;
    return m_files.copy(from, to);
}

Status FailingFileManager::move(const MacPath& from, const MacPath& to) {
    if (auto failed = fault("move", to))
        return *failed;
    return m_files.move(from, to);
}

Status FailingFileManager::replace(const MacPath& original, const MacPath& replacement) {
    if (auto failed = fault("replace", original))
        return *failed;
    return m_files.replace(original, replacement);
}

Status FailingFileManager::remove(const MacPath& path) {
    if (auto failed = fault("remove", path))
        return *failed;
    return m_files.remove(path);
}

Status FailingFileManager::createFolder(const MacPath& folder) {
    if (auto failed = fault("createFolder", folder))
        return *failed;
    return m_files.createFolder(folder);
}

Status FailingFileManager::createLink(const MacPath& link, const std::string& target) {
    if (auto failed = fault("createLink", link))
        return *failed;
    return m_files.createLink(link, target);
}

Result<std::string> FailingFileManager::readLink(const MacPath& link) const {
    if (auto failed = fault("readLink", link))
        return *failed;
    return m_files.readLink(link);
}

Result<MacPath> FailingFileManager::resolveLinks(const MacPath& path) const {
    if (auto failed = fault("resolveLinks", path))
        return *failed;
    return m_files.resolveLinks(path);
}

Status FailingFileManager::setModified(const MacPath& path, Date date) {
    if (auto failed = fault("setModified", path))
        return *failed;
    return m_files.setModified(path, date);
}

} // namespace tavrik::test
