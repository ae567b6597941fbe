#pragma once

#include "platform/NotificationCenter.h"
#include "ui/models/IconShapesModel.h"
#include "ui/models/ThemeLook.h"
#include "ui/models/UiServices.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <vector>

namespace tavrik {

/// Which tab of the settings window is shown, and what the tabs without a page of their own let a person
/// choose: how themes are shown, and which icons are cut to the standard outline. Main thread.
class PreferencesPage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(Tab tab READ tab WRITE setTab NOTIFY tabChanged)
    Q_PROPERTY(tavrik::ThemeLook* themeLook READ themeLook CONSTANT)
    Q_PROPERTY(tavrik::IconShapesModel* shapes READ shapes CONSTANT)
    Q_PROPERTY(bool areShapesLoaded READ areShapesLoaded NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed) ///< something could not be saved, in a sentence

public:
    enum class Tab { Backups, Themes, Icons, Health, Updates, Leave };
    Q_ENUM(Tab)

    PreferencesPage(const UiServices& with, ThemeLook& themeLook);

    Tab tab() const { return m_tab; }

    void setTab(Tab tab);

    ThemeLook* themeLook() { return &m_themeLook; }

    IconShapesModel* shapes() { return &m_shapes; }

    bool areShapesLoaded() const { return m_areShapesLoaded; }

    const QString& problem() const { return m_problem; }

    /// The window comes up: it shows the backups when that was asked for, and takes the request back.
    Q_INVOKABLE void open();
    /// Reads the icons anew, off the main thread: called whenever they are shown.
    Q_INVOKABLE void readShapes();
    Q_INVOKABLE void setCut(int row, bool isCut);

Q_SIGNALS:
    void tabChanged();
    void changed();

private:
    void saved(bool isSaved);

    const UiServices m_with;
    ThemeLook& m_themeLook;
    IconShapesModel m_shapes;
    Tab m_tab = Tab::Backups;
    bool m_areShapesLoaded = false;
    QString m_problem;
    std::vector<NotificationCenter::Observation> m_observations;
};

} // namespace tavrik
