#include "ui/models/Images.h"

#include <QUrl>

namespace tavrik {

namespace {

/// Paths hold any character, and addresses few.
QString address(const char* kind, const QString& path, int revision) {
    if (path.isEmpty())
        return {};
    return QStringLiteral("image://icon/%1/%2/%3")
        .arg(QLatin1String(kind))
        .arg(revision)
        .arg(QString::fromLatin1(path.toUtf8().toBase64(QByteArray::Base64UrlEncoding)));
}

} // namespace

void Images::raiseRevision() {
    ++m_revision;
    Q_EMIT revisionChanged();
}

QString Images::ofFile(const QString& path, int revision) const {
    return address("file", path, revision);
}

QString Images::ofFileCut(const QString& path, int revision) const {
    return address("cut", path, revision);
}

QString Images::ofApp(const QString& path, int revision) const {
    return address("app", path, revision);
}

QString Images::ofShown(const QString& path, int revision) const {
    return address("shown", path, revision);
}

QString Images::ofHostFile(const QString& path) const {
    return address("host", path, 0);
}

} // namespace tavrik
