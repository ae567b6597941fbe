#pragma once

#include "app/MacHost.h"
#include "platform/LocalNotifications.h"
#include "platform/Threads.h"
#include "platform/UserDefaults.h"
#include "support/LogRecorder.h"
#include "support/practice/VirtualMac.h"
#include "ui/Language.h"
#include "ui/Program.h"
#include "ui/models/WindowAlerts.h"
#include "ui/screens/SampleServer.h"
#include "ui/screens/Stagehand.h"

#include <QGuiApplication>
#include <QQuickItem>
#include <QQuickStyle>
#include <QQuickWindow>
#include <QTest>
#include <QUrl>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace tavrik::test {

/// The whole program with its window on a furnished Mac in virtual time. Whatever Qt Quick has to complain of
/// fails the test.
class UiStage : public testing::Test, protected VirtualMac, protected Stagehand {
protected:
    UiStage() {
        declareMainThread();
        makeApplication();
        complaints().clear();
        m_before = qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
            // What the offscreen platform lacks is no fault of a view.
            if (type != QtDebugMsg && type != QtInfoMsg &&
                !text.startsWith(QLatin1String("This plugin does not")))
                complaints().append(text);
        });
    }

    ~UiStage() override {
        program.reset();
        qInstallMessageHandler(m_before);
        EXPECT_EQ(complaints().join(QLatin1Char('\n')).toStdString(), "");
    }

    /// Opens the window, anew when it was open, and waits for the lists.
    void start() {
        program.reset();
        if (isWelcomed)
            ignoreFailure(mac.defaults.set("Welcomed", plist::Value(true)));
        if (isNetworkAsked) {
            EXPECT_TRUE(NetworkConsent(mac.defaults).write({.starts = 2, .isAsked = true}));
        }
        auto opened = Program::open(host, alerts, {.keys = SampleServer::keys()});
        ASSERT_TRUE(opened) << opened.error().description;
        program = std::move(*opened);
        program->start();
        ASSERT_TRUE(waitFor(
            [&] { return !program->delegate().isStarting() && window()->property("wasDrawn").toBool(); }));
    }

    WindowModel& model() { return program->model(); }

    QQuickWindow* window() { return program->mainWindow(); }

    /// Qt's own panel of a file dialog, which stands in where the system has none.
    QObject* panel() {
        for (const QQuickItem* const layer : window()->contentItem()->childItems()) {
            for (const QQuickItem* const item : layer->childItems()) {
                if (item->isVisible() && item->parent() && item->parent()->inherits("QQuickDialog"))
                    return item->parent();
            }
        }
        return nullptr;
    }

    void chooseInPanel(const char* property, const QUrl& chosen) {
        ASSERT_TRUE(waitFor([&] { return panel() != nullptr; }));
        panel()->setProperty(property, chosen);
        QMetaObject::invokeMethod(panel(), "accept");
        ASSERT_TRUE(waitFor([&] { return panel() == nullptr; }));
    }

private:
    static QStringList& complaints() {
        static QStringList list;
        return list;
    }

    struct Host : MacHost {
        explicit Host(Mac& of) : m_mac(of) {}

        Mac& mac() override { return m_mac; }

        void startSession() override {}

        Mac& m_mac;
    };

    struct Messages : LocalNotifications {
        void show(const LocalNotification& notification) override { shown.push_back(notification); }

        std::vector<LocalNotification> shown;
    };

    /// One for all tests of a program: the clock of Qt Quick's animations does not outlive the first.
    static void makeApplication() {
        static int argumentCount = 0;
        static QGuiApplication* application = nullptr;
        if (application)
            return;
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
        application = new QGuiApplication(argumentCount, nullptr);
        QGuiApplication::setApplicationVersion(QStringLiteral("1.2.0"));
        QQuickStyle::setStyle(QStringLiteral("Basic"));
        QGuiApplication::setQuitOnLastWindowClosed(false);
        static const Language english{QLocale(QLocale::English)};
    }

    QtMessageHandler m_before = nullptr;

protected:
    LogRecorder log;
    WindowAlerts alerts;
    Messages messages;
    Mac whole{mac.volume,   mac.files,   mac.bookmarks, mac.workspace, mac.tools,  mac.notifications,
              mac.defaults, mac.machine, clock,         alerts,        mac.random, messages};
    Host host{whole};
    std::unique_ptr<Program> program;
    bool isWelcomed = true;     ///< the page of the first start was seen
    bool isNetworkAsked = true; ///< and the question about the network answered, with a no
};

} // namespace tavrik::test
