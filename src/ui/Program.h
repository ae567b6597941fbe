#pragma once

#include "app/AppDelegate.h"
#include "app/ApplicationFace.h"
#include "app/Managers.h"
#include "app/SharedCoordinators.h"
#include "model/SupportFolderLock.h"
#include "platform/Result.h"
#include "remote/RemoteServices.h"
#include "ui/models/Background.h"
#include "ui/models/EndNotice.h"
#include "ui/models/Images.h"
#include "ui/models/Notices.h"
#include "ui/models/WindowModel.h"

#include <QObject>
#include <QQmlApplicationEngine>

#include <memory>

class QQuickWindow;

namespace tavrik {

class MacHost;
class WindowAlerts;

/// The program with its windows, over one Mac. Main thread. Built once per process, and once per test.
class Program : public QObject, private ApplicationFace {
public:
    /// Takes the right to write. The error, in a sentence, says who has it, or why it cannot be taken.
    /// `alerts` is what the Mac asks through; both outlive the program. Of `remote` the version is filled in.
    static Result<std::unique_ptr<Program>> open(MacHost& host, WindowAlerts& alerts,
                                                 RemoteServices::Options remote = {});

    ~Program() override;

    /// Shows the main window and begins the checks of the start.
    void start();

    /// Ends the program, after asking when something is staged.
    void quit();

    Managers& managers() { return m_managers; }

    WindowModel& model() { return m_model; }

    AppDelegate& delegate() { return m_delegate; }

    QQuickWindow* mainWindow() const;
    /// Null until it was opened.
    QQuickWindow* settingsWindow() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class Window;

    Program(MacHost& host, WindowAlerts& alerts, RemoteServices::Options remote, SupportFolderLock lock);

    void disableAutomaticTabbing() override;
    std::vector<ManagedWindow*> openWindows() override;
    void openSettings() override;
    void terminate() override;
    RemoteServices::Options completed(RemoteServices::Options remote);

    MacHost& m_host;
    SupportFolderLock m_lock;
    Managers m_managers;
    SharedCoordinators m_coordinators;
    AppDelegate m_delegate;
    Images m_images;
    Notices m_notices;
    EndNotice m_endNotice;
    Background m_background{m_delegate};
    RemoteServices m_remote;
    WindowModel m_model;
    QQmlApplicationEngine m_engine;
    std::unique_ptr<Window> m_main;
    std::unique_ptr<Window> m_settings;
};

} // namespace tavrik
