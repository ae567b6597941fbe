#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// How to draw a title that may be written in a styled alphabet. Pure; any thread.
class StyledText : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    /// The font family that has the whole alphabet, so that its letters do not come from several, which stand
    /// unevenly. The application's own for plain text, and where that family is not installed: a Mac finds its
    /// own.
    Q_INVOKABLE QString familyFor(const QString& text) const;
};

} // namespace tavrik
