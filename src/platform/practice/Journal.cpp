#include "platform/practice/Journal.h"

#include "platform/PosixFileManager.h"

#include <QByteArray>

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace tavrik::practice {

namespace {

Error failed(const MacPath& journal, int code) {
    return Error{journal.string() + ": " + std::strerror(code), code};
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

    const int file = ::open(host->string().c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0600);
    if (file < 0)
        return failed(journal, errno);
    // One write, so that a line stays whole between those of other processes.
    const std::string line = lineOf(moment, fields);
    const ssize_t written = ::write(file, line.data(), line.size());
    const int code = written < 0 ? errno : ENOSPC;
    ::close(file);
    return written == static_cast<ssize_t>(line.size()) ? Status(Done{}) : failed(journal, code);
}

} // namespace tavrik::practice
