#pragma once

#include "remote/InterfaceTexts.h"
#include "ui/models/UiServices.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// The texts and links of the interface that a service may replace, as they are now. A replaced text is written
/// in the language of the source: whoever reads another one keeps the translation of the built-in text. Main
/// thread.
class InterfaceWords : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(QString welcomeSummary READ welcomeSummary NOTIFY changed)
    Q_PROPERTY(QString aboutSummary READ aboutSummary NOTIFY changed)

public:
    enum class Page { Home, Help, ReleaseNotes, Privacy };
    Q_ENUM(Page)

    explicit InterfaceWords(const UiServices& with) : m_with(with) {}

    QString text(InterfaceText text) const;

    QString welcomeSummary() const { return text(InterfaceText::welcomeSummary); }

    QString aboutSummary() const { return text(InterfaceText::aboutSummary); }

    /// Opens the page in the browser. Where that fails, the line of the window says the address.
    Q_INVOKABLE void open(tavrik::InterfaceWords::Page page);

Q_SIGNALS:
    void changed();

private:
    const UiServices m_with;
};

} // namespace tavrik
