#pragma once

#include "system/AccessCheck.h"
#include "ui/models/UiServices.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

namespace tavrik {

/// What macOS refuses for privacy's sake, told in the window from the start on and before anything is written:
/// the program can do nothing of use until the person allows it. Main thread.
class PrivacyNote : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(QString text READ text NOTIFY changed) ///< empty when nothing is refused
    Q_PROPERTY(bool isLooking READ isLooking NOTIFY changed)

public:
    explicit PrivacyNote(const UiServices& with) : m_with(with) {}

    const QString& text() const { return m_text; }

    bool isLooking() const { return m_looks > 0; }

    /// Looks anew, in the background.
    Q_INVOKABLE void look();
    Q_INVOKABLE void openSettings() const;

Q_SIGNALS:
    void changed();

private:
    const UiServices m_with;
    QString m_text;
    std::optional<PrivacyPane> m_pane;
    int m_looks = 0; ///< under way, one after the other
};

} // namespace tavrik
