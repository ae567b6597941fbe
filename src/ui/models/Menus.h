#pragma once

#include "ui/models/MenuAction.h"

#include <QList>
#include <QObject>
#include <QQmlListProperty>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace tavrik {

class AppDelegate;
class WindowModel;

/// One menu of the menu bar.
class MenuColumn : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(QQmlListProperty<tavrik::MenuAction> actions READ lines CONSTANT)

public:
    MenuColumn(QString title, QObject* parent) : QObject(parent), m_title(std::move(title)) {}

    QString title() const { return m_title; }

    const QList<MenuAction*>& actions() const { return m_actions; }

    QQmlListProperty<MenuAction> lines() { return {this, &m_actions}; }

    MenuAction* add(MenuAction::Words words);
    void addSeparator();

private:
    QString m_title;
    QList<MenuAction*> m_actions;
};

/// The menu bar: every action that a person can take without pointing at something, with its shortcut. Which
/// are enabled, the application's delegate says. Main thread.
class Menus : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(QQmlListProperty<tavrik::MenuColumn> columns READ columns CONSTANT)

public:
    Menus(WindowModel& window, AppDelegate& delegate);

    QQmlListProperty<MenuColumn> columns() { return {this, &m_columns}; }

    /// What is enabled, checked or said may have changed.
    void refresh();

private:
    MenuColumn& addColumn(const QString& title);
    void addProgram();
    void addFile();
    void addEdit();
    void addView();
    void addWindow();
    void addHelp();
    bool isAllowed() const;
    /// Types a shortcut, for whoever has the focus once the menu is closed: a field of text, or a list.
    void typeAfterwards(Qt::Key key);

    WindowModel& m_window;
    AppDelegate& m_delegate;
    QList<MenuColumn*> m_columns;
    bool m_isTyping = false;
};

} // namespace tavrik
