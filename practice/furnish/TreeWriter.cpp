#include "practice/furnish/TreeWriter.h"

#include "platform/FileDescriptor.h"
#include "practice/furnish/HostFiles.h"

#include <unistd.h>

#include <utility>

namespace tavrik::practice {

TreeWriter::TreeWriter(HostPath root) : m_root(std::move(root)) {}

void TreeWriter::folder(const MacPath& folder, mode_t mode) {
    if (failed() || m_folders.contains(folder))
        return;
    note(createHostFolder(host(folder), mode));
    m_folders.insert(folder);
}

void TreeWriter::file(const MacPath& file, ByteView content, mode_t mode) {
    folder(file.parent());
    if (!failed())
        note(createHostFile(host(file), content, mode));
}

void TreeWriter::propertyList(const MacPath& file, const plist::Value& value, plist::Format format,
                              mode_t mode) {
    if (failed())
        return;
    if (const Result<Bytes> content = plist::serialize(value, format))
        this->file(file, *content, mode);
    else
        note(content.error());
}

void TreeWriter::link(const MacPath& link, const std::string& target) {
    folder(link.parent());
    if (!failed() && ::symlink(target.c_str(), host(link).string().c_str()) != 0)
        note(hostError("make the link", host(link), lastError()));
}

void TreeWriter::date(const MacPath& path, Date modified) {
    if (!failed())
        note(setHostDate(host(path), modified));
}

void TreeWriter::note(const Status& outcome) {
    if (!failed())
        m_status = outcome;
}

} // namespace tavrik::practice
