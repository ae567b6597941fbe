#include "ui/Program.h"

#include "app/MacHost.h"
#include "platform/FileManager.h"
#include "platform/Mac.h"
#include "platform/Volume.h"
#include "ui/models/GlyphProvider.h"
#include "ui/models/IconProvider.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QQuickWindow>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(TavrikPlugin)

namespace tavrik {

/// A window of the interface as the delegate knows it. The delegate decides whether it may close.
class Program::Window : public QObject, public ManagedWindow {
public:
    enum class AsksFirst { no, yes };

    Window(QQuickWindow& window, AppDelegate& delegate, AsksFirst asks)
        : m_window(window),
          m_delegate(delegate),
          m_asksFirst(asks == AsksFirst::yes) {
        window.installEventFilter(this);
    }

    void orderOut() override { m_window.hide(); }

    void close() override {
        // Later, since a window that is about to close takes no second request.
        m_asksFirst = false;
        QMetaObject::invokeMethod(&m_window, &QWindow::close, Qt::QueuedConnection);
    }

    QObject* object() override { return &m_window; }

    QQuickWindow* window() const { return &m_window; }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Close && m_asksFirst && !m_delegate.windowShouldClose(*this)) {
            event->ignore();
            return true;
        }
        if (event->type() == QEvent::Close)
            m_delegate.windowWillClose(*this);
        return QObject::eventFilter(watched, event);
    }

private:
    QQuickWindow& m_window;
    AppDelegate& m_delegate;
    bool m_asksFirst;
};

Result<std::unique_ptr<Program>> Program::open(MacHost& host, WindowAlerts& alerts,
                                               RemoteServices::Options remote) {
    Mac& mac = host.mac();
    const MacPath folder = supportFolder(mac.volume);
    ignoreFailure(mac.files.createFolder(folder)); // the lock says it better
    auto lock = SupportFolderLock::take(mac, folder, "Tavrik");
    if (!lock)
        return lock.error();
    return std::unique_ptr<Program>(new Program(host, alerts, std::move(remote), std::move(*lock)));
}

Program::Program(MacHost& host, WindowAlerts& alerts, RemoteServices::Options remote, SupportFolderLock lock)
    : m_host(host),
      m_lock(std::move(lock)),
      m_managers(host.mac()),
      m_coordinators(m_managers),
      m_delegate(m_managers, m_coordinators, *this),
      m_endNotice(host.mac().localNotifications),
      m_remote({host.mac().defaults, host.mac().machine, host.mac().clock}, completed(std::move(remote))),
      m_model({m_host, m_managers, m_coordinators, m_delegate, m_background, m_images, m_notices, m_endNotice,
               m_remote},
              alerts) {
    m_engine.addImageProvider(QStringLiteral("icon"), new IconProvider(m_managers.iconCache, m_managers.icons));
    m_engine.addImageProvider(QStringLiteral("glyph"), new GlyphProvider);
    m_engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QCoreApplication::instance()->installEventFilter(this);
    QObject::connect(&m_model, &WindowModel::quitAsked, this, &Program::quit);
    m_engine.setInitialProperties({{QStringLiteral("model"), QVariant::fromValue(&m_model)}});
}

Program::~Program() {
    // What still runs may wait for the main thread, or for an answer.
    while (m_delegate.isWorking()) {
        m_model.alerts()->answerAll();
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::ExcludeUserInputEvents);
    }
}

void Program::start() {
    m_delegate.applicationWillFinishLaunching();
    m_engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Tavrik/qml/Main.qml")));
    const auto roots = m_engine.rootObjects();
    if (roots.isEmpty())
        qFatal("the main window cannot be made");
    auto* const window = qobject_cast<QQuickWindow*>(roots.front());
    m_main = std::make_unique<Window>(*window, m_delegate, Window::AsksFirst::yes);
    m_background.run(m_main.get(), [this] { m_host.startSession(); }, [] {});
    m_delegate.applicationDidFinishLaunching();
    // The checks of the start come first, with all that they ask.
    m_background.run(this, [] {}, [this] { m_remote.startUp(); });
}

RemoteServices::Options Program::completed(RemoteServices::Options remote) {
    remote.version = QCoreApplication::applicationVersion().toStdString();
    remote.isBusy = [this] {
        return m_model.isBlocked() || m_model.apply()->stage() != ApplyModel::Stage::Idle;
    };
    return remote;
}

QQuickWindow* Program::mainWindow() const {
    return m_main ? m_main->window() : nullptr;
}

QQuickWindow* Program::settingsWindow() const {
    return m_settings ? m_settings->window() : nullptr;
}

std::vector<ManagedWindow*> Program::openWindows() {
    std::vector<ManagedWindow*> windows;
    for (Window* window : {m_main.get(), m_settings.get()}) {
        if (window)
            windows.push_back(window);
    }
    return windows;
}

void Program::disableAutomaticTabbing() {
    m_host.disableAutomaticTabbing();
}

void Program::openSettings() {
    if (!m_settings) {
        m_engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Tavrik/qml/settings/SettingsWindow.qml")));
        auto* const window = qobject_cast<QQuickWindow*>(m_engine.rootObjects().back());
        m_settings = std::make_unique<Window>(*window, m_delegate, Window::AsksFirst::no);
    }
    m_delegate.windowDidBecomeMain(*m_settings);
    m_settings->window()->show();
    m_settings->window()->raise();
    m_settings->window()->requestActivate();
}

void Program::terminate() {
    QCoreApplication::exit(0);
}

void Program::quit() {
    if (m_delegate.applicationShouldTerminate())
        terminate();
}

bool Program::eventFilter(QObject* watched, QEvent* event) {
    // The system's own way to quit: from the Dock, or at the end of the login session.
    if (event->type() != QEvent::Quit || watched != QCoreApplication::instance())
        return QObject::eventFilter(watched, event);
    event->setAccepted(m_delegate.applicationShouldTerminate());
    return !event->isAccepted();
}

} // namespace tavrik
