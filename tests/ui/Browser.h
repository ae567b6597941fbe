#pragma once

#include <QDesktopServices>
#include <QObject>
#include <QStringList>
#include <QUrl>

namespace tavrik::test {

/// Remembers what the system was to open of a scheme.
class Browser : public QObject {
    Q_OBJECT

public:
    explicit Browser(const QString& scheme) : m_scheme(scheme) {
        QDesktopServices::setUrlHandler(scheme, this, "open");
    }

    ~Browser() override { QDesktopServices::unsetUrlHandler(m_scheme); }

    Q_INVOKABLE void open(const QUrl& url) { opened.append(url.toString()); }

    QStringList opened;

private:
    const QString m_scheme;
};

} // namespace tavrik::test
