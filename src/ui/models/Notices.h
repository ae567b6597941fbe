#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// The line that says why something was refused, or that it was done: shown for a few seconds, and read out.
/// Main thread.
class Notices : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(bool isRefusal READ isRefusal NOTIFY changed)

public:
    QString text() const { return m_text; }

    bool isRefusal() const { return m_isRefusal; }

    /// Something was not done, and why.
    void refuse(const QString& sentence);
    /// Something was done that does not show by itself.
    void tell(const QString& sentence);

    Q_INVOKABLE void dismiss();

Q_SIGNALS:
    /// Also for the same text once more.
    void changed();

private:
    void show(const QString& sentence, bool isRefusal);

    QString m_text;
    bool m_isRefusal = false;
};

} // namespace tavrik
