#include "support/FileTree.h"

#include "platform/PosixFileManager.h"

#include <QCryptographicHash>

#include <gtest/gtest.h>

namespace tavrik::test {

namespace {

std::string digest(ByteView data) {
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(QByteArray::fromRawData(textOf(data).data(), static_cast<qsizetype>(data.size())));
    return hash.result().toHex().toStdString();
}

TreeEntry entryOf(const FileManager& files, const MacPath& path) {
    const auto attributes = files.attributes(path, Links::dontFollow);
    if (!attributes) {
        ADD_FAILURE() << attributes.error().description;
        return {};
    }
    if (attributes->type == FileType::symbolicLink) {
        const auto target = files.readLink(path);
        return {.type = attributes->type,
                .permissions = 0,
                .content = target ? *target : target.error().description};
    }
    TreeEntry entry{.type = attributes->type, .permissions = attributes->permissions, .content = {}};
    if (entry.type == FileType::file) {
        const auto content = files.read(path);
        entry.content = content ? digest(*content) : content.error().description;
    }
    return entry;
}

void collect(const FileManager& files, const MacPath& folder, const std::string& prefix, FileTree& tree) {
    const auto names = files.list(folder);
    if (!names) {
        ADD_FAILURE() << names.error().description;
        return;
    }
    for (const std::string& name : *names) {
        const TreeEntry entry = entryOf(files, folder / name);
        tree.emplace(prefix + name, entry);
        if (entry.type == FileType::folder)
            collect(files, folder / name, prefix + name + "/", tree);
    }
}

} // namespace

std::ostream& operator<<(std::ostream& out, const TreeEntry& entry) {
    constexpr const char* kTypes[] = {"file", "folder", "link", "other"};
    return out << kTypes[static_cast<int>(entry.type)] << " " << std::oct << entry.permissions << std::dec
               << " " << entry.content;
}

FileTree treeOf(const FileManager& files, const MacPath& folder) {
    FileTree tree;
    collect(files, folder, "", tree);
    return tree;
}

FileTree treeOf(const HostPath& folder) {
    return treeOf(PosixFileManager(folder), MacPath("/"));
}

std::vector<std::string> differences(const FileTree& before, const FileTree& after) {
    std::map<std::string, std::string> lines;
    for (const auto& [path, entry] : before) {
        const auto found = after.find(path);
        if (found == after.end())
            lines.emplace(path, "- " + path);
        else if (found->second != entry)
            lines.emplace(path, "~ " + path);
    }
    for (const auto& [path, entry] : after) {
        if (!before.contains(path))
            lines.emplace(path, "+ " + path);
    }
    std::vector<std::string> result;
    for (const auto& [path, line] : lines)
        result.push_back(line);
    return result;
}

} // namespace tavrik::test
