#include "platform/practice/PropertyListFile.h"

#include "platform/AtomicFile.h"

#include <cerrno>

namespace tavrik::practice {

Result<std::optional<plist::Value>> readPropertyList(const FileManager& files, const MacPath& file) {
    const auto bytes = files.read(file);
    if (!bytes) {
        if (bytes.error().code == ENOENT)
            return std::optional<plist::Value>();
        return bytes.error();
    }
    auto content = plist::parse(*bytes);
    if (!content)
        return Error{file.string() + ": " + content.error().description, content.error().code};
    return std::optional(std::move(*content));
}

Status writePropertyList(FileManager& files, const MacPath& file, const plist::Value& content) {
    const auto bytes = plist::serialize(content, plist::Format::binary);
    if (!bytes)
        return bytes.error();
    return writeAtomically(files, file, *bytes);
}

} // namespace tavrik::practice
