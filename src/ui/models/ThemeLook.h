#pragma once

#include "themes/ThemePreviewSettingsManager.h"
#include "ui/models/UiServices.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

/// How the icons of themes are laid out, for all views that show or choose it. Kept in the user defaults; a
/// choice shows at once and is written in the background. Main thread.
class ThemeLook : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool showsGrid READ showsGrid WRITE setShowsGrid NOTIFY changed) ///< else scattered
    Q_PROPERTY(bool showsFileNames READ showsFileNames WRITE setShowsFileNames NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed) ///< the choice could not be saved, in a sentence

public:
    explicit ThemeLook(const UiServices& with);

    bool showsGrid() const { return m_showsGrid; }

    void setShowsGrid(bool shows);

    bool showsFileNames() const { return m_showsFileNames; }

    void setShowsFileNames(bool shows);

    const QString& problem() const { return m_problem; }

Q_SIGNALS:
    void changed();

private:
    void save();

    const UiServices m_with;
    ThemePreviewSettingsManager m_settings;
    bool m_showsGrid;
    bool m_showsFileNames;
    QString m_problem;
};

} // namespace tavrik
