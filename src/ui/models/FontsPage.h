#pragma once

#include "ui/models/UiServices.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// The place for styled alphabets. Main thread.
class FontsPage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

public:
    explicit FontsPage(const UiServices& with);

private:
    const UiServices m_with;
};

} // namespace tavrik
