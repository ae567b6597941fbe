#include "support/FileTree.h"

#include "platform/PosixFileManager.h"

#include <QCryptographicHash>

#include <gtest/gtest.h>

#include <sstream>

namespace tavrik::test {

namespace {

std::string digest(ByteView data) {
    const auto bytes = QByteArray::fromRawData(textOf(data).data(), static_cast<qsizetype>(data.size()));
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().toStdString();
}

void collect(const FileManager& files, const MacPath& folder, const std::string& prefix, FileTree& tree) {
    const auto names = files.list(folder);
    ASSERT_TRUE(names) << names.error().description;
    for (const std::string& name : *names) {
        const MacPath path = folder / name;
        const auto attributes = files.attributes(path, Links::dontFollow);
        ASSERT_TRUE(attributes) << attributes.error().description;
        std::ostringstream entry;
        if (attributes->type == FileType::symbolicLink) {
            const auto target = files.readLink(path);
            entry << "link " << (target ? *target : target.error().description);
        } else if (attributes->type == FileType::file) {
            const auto content = files.read(path);
            entry << "file " << std::oct << attributes->permissions << " "
                  << (content ? digest(*content) : content.error().description);
        } else {
            const bool isFolder = attributes->type == FileType::folder;
            entry << (isFolder ? "folder " : "other ") << std::oct << attributes->permissions;
        }
        tree.emplace(prefix + name, entry.str());
        if (attributes->type == FileType::folder)
            collect(files, path, prefix + name + "/", tree);
    }
}

} // namespace

FileTree treeOf(const FileManager& files, const MacPath& folder) {
    FileTree tree;
    collect(files, folder, "", tree);
    return tree;
}

FileTree treeOf(const HostPath& folder) {
    return treeOf(PosixFileManager(folder), MacPath("/"));
}

std::vector<std::string> differences(const FileTree& before, const FileTree& after) {
    FileTree all = before;
    all.insert(after.begin(), after.end());
    std::vector<std::string> lines;
    for (const auto& [path, entry] : all) {
        if (!after.contains(path))
            lines.push_back("- " + path);
        else if (!before.contains(path))
            lines.push_back("+ " + path);
        else if (after.at(path) != entry)
            lines.push_back("~ " + path);
    }
    return lines;
}

} // namespace tavrik::test
