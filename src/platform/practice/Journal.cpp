#include "platform/practice/Journal.h"

#include "platform/FileDescriptor.h"
#include "platform/PosixFileManager.h"

#include <QByteArray>

#include <fcntl.h>

#include <algorithm>

namespace tavrik::practice {

namespace {

Error failure(const MacPath& journal, std::error_code reason) {
    return Error{journal.string() + ": " + reason.message(), reason.value()};
}

std::string lineOf(Date moment, const std::vector<std::string>& fields) {
    std::string line = QByteArray::number(moment.sinceReference, 'f', 3).toStdString();
    for (std::string field : fields) {
        std::ranges::replace_if(field, [](char c) { return c == '\t' || c == '\n' || c == '\r'; }, ' ');
        line += '\t' + field;
    }
    return line + '\n';
}

} // namespace

Status appendToJournal(PosixFileManager& files, const MacPath& journal, Date moment,
                       const std::vector<std::string>& fields) {
    if (auto made = files.createFolder(journal.parent()); !made)
        return made;
    const auto host = files.hostPath(journal, Links::follow);
    if (!host)
        return host.error();
    auto file = FileDescriptor::open(AT_FDCWD, host->string(), O_WRONLY | O_APPEND | O_CREAT, 0600);
    if (!file)
        return failure(journal, lastError());
    // A line goes out in one write, which keeps it whole between those of other processes.
    if (const auto failed = file.writeAll(bytesOf(lineOf(moment, fields))))
        return failure(journal, failed);
    return Done{};
}

} // namespace tavrik::practice
