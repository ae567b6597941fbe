#pragma once

#include "ui/models/UiServices.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// From the plan of an apply over its progress to its result. Main thread.
class ApplyModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")

public:
    explicit ApplyModel(const UiServices& with);

    /// Shows the plan.
    Q_INVOKABLE void begin() {}

private:
    const UiServices m_with;
};

} // namespace tavrik
