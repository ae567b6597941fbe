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

} // namespace tavrik::test
