#pragma once

#include "platform/FileManager.h"

#include <functional>
#include <mutex>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

namespace tavrik::test {

/// One call of a file manager: "create" of "/a/b". For `copy`, `move` and `replace` the path is the one that is
/// made or overwritten.
struct FileOperation {
    std::size_t number = 0; ///< from 1
    std::string name;
    MacPath path;
};

enum class Times { once, forGood };

/// Counts the operations of another file manager and lets them fail on demand, before they have done anything.
/// `exists` counts too, and says false when it is to fail. Any thread.
class FailingFileManager : public FileManager {
public:
    /// Looks at each operation before it runs: an errno value to fail with, or nothing. May also do something
    /// at that moment, end the process for one.
    using Rule = std::function<std::optional<int>(const FileOperation&)>;

    explicit FailingFileManager(FileManager& files) : m_files(files) {}

    void setRule(Rule rule);

    /// Fails the operation of that number, counted from now and from 1, or also all that follow.
    void failAt(std::size_t number, int code, Times times = Times::once);

    /// Fails the operation of that name on that path, or on every path when it is empty.
    void failOn(std::string name, MacPath path, int code, Times times = Times::forGood);

    void failNothing() { setRule({}); }

    /// Every operation since the last `forget`, in order: "create /a/b".
    std::vector<std::string> journal() const;
    std::size_t count() const;
    void forget();

    bool exists(const MacPath& path) const override { return !fault("exists", path) && m_files.exists(path); }

    Result<FileAttributes> attributes(const MacPath& path, Links links) const override {
        return attempt("attributes", path, &FileManager::attributes, path, links);
    }

    Result<std::vector<std::string>> list(const MacPath& path) const override {
        return attempt("list", path, &FileManager::list, path);
    }

    Result<Bytes> read(const MacPath& path, std::size_t most) const override {
        return attempt("read", path, &FileManager::read, path, most);
    }

    Result<Bytes> readBeginning(const MacPath& path, std::size_t bytes) const override {
        return attempt("readBeginning", path, &FileManager::readBeginning, path, bytes);
    }

    Status write(const MacPath& path, ByteView data) override {
        return attempt("write", path, &FileManager::write, path, data);
    }

    Status create(const MacPath& path, ByteView data) override {
        return attempt("create", path, &FileManager::create, path, data);
    }

    Status flush(const MacPath& path) override { return attempt("flush", path, &FileManager::flush, path); }

    Status copy(const MacPath& from, const MacPath& to) override {
        return attempt("copy", to, &FileManager::copy, from, to);
    }

    Status move(const MacPath& from, const MacPath& to) override {
        return attempt("move", to, &FileManager::move, from, to);
    }

    Status replace(const MacPath& path, const MacPath& replacement) override {
        return attempt("replace", path, &FileManager::replace, path, replacement);
    }

    Status remove(const MacPath& path) override { return attempt("remove", path, &FileManager::remove, path); }

    Status createFolder(const MacPath& path) override {
        return attempt("createFolder", path, &FileManager::createFolder, path);
    }

    Status createLink(const MacPath& path, const std::string& target) override {
        return attempt("createLink", path, &FileManager::createLink, path, target);
    }

    Result<std::string> readLink(const MacPath& path) const override {
        return attempt("readLink", path, &FileManager::readLink, path);
    }

    Result<MacPath> resolveLinks(const MacPath& path) const override {
        return attempt("resolveLinks", path, &FileManager::resolveLinks, path);
    }

    Status setModified(const MacPath& path, Date date) override {
        return attempt("setModified", path, &FileManager::setModified, path, date);
    }

    Result<std::uint64_t> availableSpace(const MacPath& path) const override {
        return attempt("availableSpace", path, &FileManager::availableSpace, path);
    }

private:
    std::optional<Error> fault(const char* name, const MacPath& path) const;

    /// What the other manager gives, unless the operation is to fail.
    template<typename Method, typename... Arguments>
    auto attempt(const char* name, const MacPath& path, Method method, const Arguments&... arguments) const
        -> std::invoke_result_t<Method, FileManager&, const Arguments&...> {
        if (auto failed = fault(name, path))
            return *failed;
        return (m_files.*method)(arguments...);
    }

    FileManager& m_files;
    mutable std::mutex m_mutex;
    mutable std::vector<std::string> m_journal;
    Rule m_rule;
};

} // namespace tavrik::test
