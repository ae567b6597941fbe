#pragma once

#include "icons/IconShapeAnalysis.h"
#include "icons/list/ApplicationsCoordinator.h"
#include "icons/list/CatalogueReader.h"
#include "icons/list/FilterSettingsManager.h"

#include <QObject>

namespace tavrik {

struct Managers;

/// The coordinators behind the window's lists, one set for the process. Main thread.
class SharedCoordinators {
public:
    /// Reads nothing yet.
    explicit SharedCoordinators(Managers& managers);

    /// Reads the catalogue anew, off the main thread, and redraws the lists. Any thread.
    void refresh();

    FilterSettingsManager filters;
    IconShapeAnalysis shapes;
    ApplicationsCoordinator userApps;
    ApplicationsCoordinator systemApps;

private:
    std::vector<NotificationCenter::Observation> m_observations;
    CatalogueReader m_reader;
    QObject m_mainThread; ///< last: what is under way to the main thread goes with it
};

} // namespace tavrik
