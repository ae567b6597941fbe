#pragma once

#include "changes/apply/ApplyPipeline.h"
#include "platform/NotificationCenter.h"
#include "ui/models/UiServices.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tavrik {

/// From the plan of an apply over its progress to its result. Main thread.
class ApplyModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(Stage stage READ stage NOTIFY changed)

    /// Of the plan: what happens in a few lines, then every change below its heading, as { title, lines }.
    Q_PROPERTY(QStringList summary READ summary NOTIFY changed)
    Q_PROPERTY(QVariantList details READ details NOTIFY changed)
    Q_PROPERTY(QStringList obstacles READ obstacles NOTIFY changed)
    /// macOS refuses what an apply needs, and the person can allow it.
    Q_PROPERTY(bool isRefusedByMac READ isRefusedByMac NOTIFY changed)
    Q_PROPERTY(QString runningApps READ runningApps NOTIFY changed) ///< their names, or empty

    /// Of what runs: an apply, or something else that owns the interface. A total of 0 is not known.
    Q_PROPERTY(bool isApplying READ isApplying NOTIFY changed)
    Q_PROPERTY(QString status READ status NOTIFY progressed)
    Q_PROPERTY(double value READ value NOTIFY progressed)
    Q_PROPERTY(double total READ total NOTIFY progressed)

    /// Of the result.
    Q_PROPERTY(bool isClean READ isClean NOTIFY changed)
    Q_PROPERTY(QString headline READ headline NOTIFY changed)
    Q_PROPERTY(QStringList remarks READ remarks NOTIFY changed)

public:
    enum class Stage { Idle, Planning, Plan, Running, Result };
    Q_ENUM(Stage)

    explicit ApplyModel(const UiServices& with);

    Stage stage() const { return m_stage; }

    QStringList summary() const { return m_summary; }

    QVariantList details() const { return m_details; }

    QStringList obstacles() const { return m_obstacles; }

    bool isRefusedByMac() const { return m_refusedBy.has_value(); }

    QString runningApps() const { return m_runningApps; }

    bool isApplying() const { return m_isApplying; }

    QString status() const;
    double value() const; ///< steps done
    double total() const; ///< steps in all

    bool isClean() const { return m_isClean; }

    QString headline() const { return m_headline; }

    QStringList remarks() const { return m_remarks; }

    /// Shows the plan, once it is made. Nothing happens while another stage is shown.
    Q_INVOKABLE void begin();
    /// Asks the running applications to quit, as from their menus, and looks again a little later.
    Q_INVOKABLE void askAppsToQuit();
    /// Opens the system's settings where that can be allowed.
    Q_INVOKABLE void openPrivacySettings() const;
    Q_INVOKABLE void apply();
    /// From the plan, or from the result, back to the window.
    Q_INVOKABLE void close();
    Q_INVOKABLE void copyDetails() const;

Q_SIGNALS:
    void changed();
    void progressed();

private:
    struct Planned;

    void plan();
    void show(const Planned& planned);
    void finish(const ApplyResult& result);
    void tellTheEnd() const;
    void setStage(Stage stage);

    const UiServices m_with;
    Stage m_stage = Stage::Idle;
    bool m_isApplying = false;
    QStringList m_summary;
    QVariantList m_details;
    QStringList m_obstacles;
    std::optional<PrivacyPane> m_refusedBy;
    QString m_runningApps;
    std::vector<std::string> m_runningIDs;
    int m_plannedApps = 0; ///< that look different afterwards
    bool m_isClean = true;
    QString m_headline;
    QStringList m_remarks;
    std::vector<NotificationCenter::Observation> m_observations;
};

} // namespace tavrik
