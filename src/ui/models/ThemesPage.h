#pragma once

#include "ui/models/UiServices.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// The place for themes: the library, one theme, and what goes in and out of it. Main thread.
class ThemesPage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

public:
    explicit ThemesPage(const UiServices& with);

private:
    const UiServices m_with;
};

} // namespace tavrik
