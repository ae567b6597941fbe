#include "platform/HostFile.h"

#include <QFile>
#include <QFileInfo>

namespace tavrik {

namespace {

QString named(const HostPath& file) {
    return QString::fromStdString(file.string());
}

} // namespace

Result<Bytes> readHostFile(const HostPath& file, std::size_t most) {
    const QFileInfo info(named(file));
    if (!info.exists())
        return Error{"There is no file at " + file.string() + "."};
    if (!info.isFile())
        return Error{file.string() + " is not a plain file."};
    if (static_cast<std::size_t>(info.size()) > most)
        return Error{file.string() + " is larger than " + std::to_string(most >> 20) +
                     " MB; give a smaller one."};
    QFile opened(named(file));
    if (!opened.open(QIODevice::ReadOnly))
        return Error{file.string() + " cannot be read: " + opened.errorString().toStdString() + "."};
    const QByteArray content = opened.readAll();
    if (opened.error() != QFileDevice::NoError || content.size() != info.size())
        return Error{file.string() + " cannot be read to its end: " + opened.errorString().toStdString() + "."};
    return Bytes(content.begin(), content.end());
}

Status writeHostFile(const HostPath& file, ByteView data) {
    const QString target = named(file);
    const QString temporary = target + QStringLiteral(".new");
    QFile written(temporary);
    const auto size = static_cast<qint64>(data.size());
    const bool complete = written.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
                          written.write(reinterpret_cast<const char*>(data.data()), size) == size &&
                          written.flush();
    const std::string reason = written.errorString().toStdString();
    written.close();
    if (!complete || written.error() != QFileDevice::NoError) {
        written.remove();
        return Error{file.string() + " cannot be written: " + reason + "."};
    }
    if (::rename(temporary.toLocal8Bit().constData(), target.toLocal8Bit().constData()) != 0) {
        written.remove();
        return Error{file.string() + " cannot be written: something that is no file stands in its place."};
    }
    return Done{};
}

} // namespace tavrik
