#include "ui/models/HandedFile.h"

#include "platform/Threads.h"

#include <QFile>
#include <QFileInfo>

namespace tavrik {

namespace {

constexpr qint64 kLargestFile = 256 << 20;

} // namespace

QString nameOfHandedFile(const QUrl& address) {
    const QString name = address.adjusted(QUrl::StripTrailingSlash).fileName();
    return name.isEmpty() ? address.toDisplayString() : name;
}

Result<Bytes> readHandedFile(const QUrl& address) {
    assertOffMainThread("Reading a file that was handed over");
    const std::string name = "“" + nameOfHandedFile(address).toStdString() + "”";
    if (!address.isLocalFile())
        return Error{name + " is not a file on this computer. Save it first, then drop the file."};
    const QFileInfo info(address.toLocalFile());
    if (info.isDir())
        return Error{name + " is a folder. Hand over the pictures themselves."};
    if (!info.isFile())
        return Error{name + " is not there any more."};
    if (info.size() > kLargestFile)
        return Error{name +
                     " is larger than 256 MB. A picture of 1024 × 1024 pixels is all that an icon needs."};
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly))
        return Error{name + " cannot be read: " + file.errorString().toStdString() + "."};
    const QByteArray content = file.read(kLargestFile);
    if (file.error() != QFileDevice::NoError)
        return Error{name + " cannot be read to its end: " + file.errorString().toStdString() + "."};
    return Bytes(content.begin(), content.end());
}

} // namespace tavrik
