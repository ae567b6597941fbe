#pragma once

#include "platform/FileManager.h"

#include <functional>
#include <mutex>
#include <optional>
#include <string>
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

    bool exists(const MacPath& path) const override;
    Result<FileAttributes> attributes(const MacPath& path, Links links) const override;
    Result<std::vector<std::string>> list(const MacPath& folder) const override;
    Result<Bytes> read(const MacPath& file, std::size_t most) const override;
    Status write(const MacPath& file, ByteView data) override;
    Status create(const MacPath& file, ByteView data) override;
    Status flush(const MacPath& path) override;
    Status copy(const MacPath& from, const MacPath& to) override;
    Status move(const MacPath& from, const MacPath& to) override;
    Status replace(const MacPath& original, const MacPath& replacement) override;
    Status remove(const MacPath& path) override;
    Status createFolder(const MacPath& folder) override;
    Status createLink(const MacPath& link, const std::string& target) override;
    Result<std::string> readLink(const MacPath& link) const override;
    Result<MacPath> resolveLinks(const MacPath& path) const override;
    Status setModified(const MacPath& path, Date date) override;

private:
    std::optional<Error> fault(const char* name, const MacPath& path) const;

    FileManager& m_files;
    mutable std::mutex m_mutex;
    mutable std::vector<std::string> m_journal;
    Rule m_rule;
};

} // namespace tavrik::test
