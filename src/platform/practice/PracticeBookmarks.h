#pragma once

#include "platform/Bookmarks.h"
#include "platform/practice/BookmarkCodec.h"

namespace tavrik {
class FileManager;
}

namespace tavrik::practice {

/// What a bookmark of this path records, options left at those of a bookmark file: the path with the links
/// above its last component followed, file ids, date, and the practice Mac's volume. An error when nothing is
/// there, or for the volume's root. The date is that of the last change, since not every host knows when a file
/// was made. Any thread.
Result<BookmarkTarget> describeForBookmark(const FileManager& files, const MacPath& path);

/// Bookmarks in the Mac's own format. Resolving goes by the path alone: the recorded file ids name nothing on a
/// host whose file system gives the number of a deleted application to the next one made, so that going by them
/// would now and then lead to another application. Any thread.
class PracticeBookmarks : public Bookmarks {
public:
    explicit PracticeBookmarks(const FileManager& files);

    Result<Bytes> make(const MacPath& target) const override;
    Result<MacPath> resolve(ByteView bookmark) const override;
    Result<MacPath> recordedPath(ByteView bookmark) const override;
    std::string fileURL(const MacPath& path) const override;

private:
    const FileManager& m_files;
};

} // namespace tavrik::practice
