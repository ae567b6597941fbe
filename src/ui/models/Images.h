#pragma once

#include "platform/Path.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// Where the views find pictures: addresses for the image providers. Main thread.
class Images : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    /// Raised when icon files have changed under their names; part of every address, so that views that bind to
    /// it load anew.
    Q_PROPERTY(int revision READ revision NOTIFY revisionChanged)

public:
    int revision() const { return m_revision; }

    void raiseRevision();

    /// Of an icon file, a path of the Mac: of the store, or of a theme.
    Q_INVOKABLE QString ofFile(const QString& path, int revision) const;
    /// The same, cut to the standard outline of icons.
    Q_INVOKABLE QString ofFileCut(const QString& path, int revision) const;
    /// The own icon of the application at this path of the Mac.
    Q_INVOKABLE QString ofApp(const QString& path, int revision) const;
    /// What the Mac shows for this path of it: the custom icon, else the own one.
    Q_INVOKABLE QString ofShown(const QString& path, int revision) const;
    /// Of a picture that a person hands over, a path of the host.
    Q_INVOKABLE QString ofHostFile(const QString& path) const;

Q_SIGNALS:
    void revisionChanged();

private:
    int m_revision = 0;
};

} // namespace tavrik
