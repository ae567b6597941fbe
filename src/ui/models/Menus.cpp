#include "ui/models/Menus.h"

#include "app/AppDelegate.h"
#include "ui/models/WindowModel.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QWindow>

#include <utility>

namespace tavrik {

using Request = WindowModel::Request;
using Place = WindowModel::Place;

MenuAction* MenuColumn::add(MenuAction::Words words) {
    m_actions.append(new MenuAction(std::move(words), this));
    return m_actions.back();
}

void MenuColumn::addSeparator() {
    m_actions.append(new MenuAction(this));
}

Menus::Menus(WindowModel& window, AppDelegate& delegate) : m_window(window), m_delegate(delegate) {
    addProgram();
    addFile();
    addEdit();
    addView();
    addWindow();
    addHelp();
}

void Menus::refresh() {
    for (const MenuColumn* const column : m_columns) {
        for (MenuAction* const action : column->actions())
            Q_EMIT action->changed();
    }
}

MenuColumn& Menus::addColumn(const QString& title) {
    m_columns.append(new MenuColumn(title, this));
    return *m_columns.back();
}

bool Menus::isAllowed() const {
    return m_delegate.validateMenuItem(AppDelegate::MenuAction::other) && !m_window.isBlocked() &&
           m_window.apply()->stage() == ApplyModel::Stage::Idle && !m_window.alerts()->isShown();
}

void Menus::typeAfterwards(Qt::Key key) {
    if (m_isTyping)
        return;
    const auto type = [this, key] {
        QWindow* const window = QGuiApplication::focusWindow();
        if (!window)
            return;
        // What is typed is looked up among the shortcuts too, and would come back here.
        const QScopedValueRollback typing(m_isTyping, true);
        for (const auto kind : {QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(kind, key, Qt::ControlModifier);
            QCoreApplication::sendEvent(window, &event);
        }
    };
    QMetaObject::invokeMethod(this, type, Qt::QueuedConnection);
}

void Menus::addProgram() {
    const auto allowed = [this] { return isAllowed(); };
    MenuColumn& menu = addColumn(tr("Tavrik"));
    menu.add({.text = [] { return tr("About Tavrik"); },
              .run = [this] { m_window.ask(Request::About); },
              .isEnabled = allowed,
              .role = MenuAction::Role::About});
    menu.add({.text = [] { return tr("Check for Updates…"); },
              .run = [this] { m_window.updates()->offer()->check(); },
              .isEnabled = allowed,
              .role = MenuAction::Role::Program});
    menu.addSeparator();
    menu.add(
        {.text = [] { return tr("Settings…"); },
         .shortcut = QStringLiteral("Ctrl+,"),
         .run = [this] { m_window.openSettings(); },
         .isEnabled = [this] { return m_delegate.validateMenuItem(AppDelegate::MenuAction::showPreferences); },
         .role = MenuAction::Role::Preferences});
    menu.addSeparator();
    menu.add({.text = [] { return tr("Quit Tavrik"); },
              .shortcut = QStringLiteral("Ctrl+Q"),
              .run = [this] { Q_EMIT m_window.quitAsked(); },
              .isEnabled = [this] { return m_delegate.validateMenuItem(AppDelegate::MenuAction::quit); },
              .role = MenuAction::Role::Quit});
}

void Menus::addFile() {
    const auto allowed = [this] { return isAllowed(); };
    MenuColumn& menu = addColumn(tr("File"));
    const auto request = [&](auto text, const char* shortcut, Request what) {
        menu.add({.text = text,
                  .shortcut = QString::fromLatin1(shortcut),
                  .run = [this, what] { m_window.ask(what); },
                  .isEnabled = allowed});
    };
    request([] { return tr("Add Icons…"); }, "Ctrl+O", Request::AddIcons);
    request([] { return tr("New Theme…"); }, "Ctrl+N", Request::NewTheme);
    request([] { return tr("Import Theme…"); }, "Ctrl+Shift+O", Request::ImportTheme);
    request([] { return tr("Make a Theme of a Folder…"); }, "", Request::ImportFolder);
    menu.addSeparator();
    menu.add({.text = [] { return tr("Apply Changes…"); },
              .shortcut = QStringLiteral("Ctrl+Return"),
              .run = [this] { m_window.apply()->begin(); },
              .isEnabled = [this] { return m_window.canApply() && isAllowed(); }});
    menu.add({.text = [] { return tr("Discard Changes"); },
              .run = [this] { m_window.edits()->discard(); },
              .isEnabled = [this] { return m_window.canApply() && isAllowed(); }});
    menu.add({.text = [] { return tr("Refresh Launchpad and Dock"); },
              .shortcut = QStringLiteral("Ctrl+R"),
              .run = [this] { m_window.refresh(); },
              .isEnabled =
                  [this] {
                      return m_delegate.validateMenuItem(AppDelegate::MenuAction::manualRefresh) && isAllowed();
                  }});
    menu.addSeparator();
    request([] { return tr("Close Window"); }, "Ctrl+W", Request::CloseWindow);
}

void Menus::addEdit() {
    MenuColumn& menu = addColumn(tr("Edit"));
    menu.add({.text = [this] { return m_window.edits()->undoText(); },
              .shortcut = QStringLiteral("Ctrl+Z"),
              .run = [this] { m_window.edits()->undo(); },
              .isEnabled = [this] { return m_window.edits()->canUndo() && isAllowed(); }});
    menu.add({.text = [this] { return m_window.edits()->redoText(); },
              .shortcut = QStringLiteral("Ctrl+Shift+Z"),
              .run = [this] { m_window.edits()->redo(); },
              .isEnabled = [this] { return m_window.edits()->canRedo() && isAllowed(); }});
    menu.addSeparator();
    for (const auto& [text, key, shortcut] : {std::tuple(QT_TR_NOOP("Cut"), Qt::Key_X, "Ctrl+X"),
                                              std::tuple(QT_TR_NOOP("Copy"), Qt::Key_C, "Ctrl+C"),
                                              std::tuple(QT_TR_NOOP("Paste"), Qt::Key_V, "Ctrl+V"),
                                              std::tuple(QT_TR_NOOP("Select All"), Qt::Key_A, "Ctrl+A")}) {
        menu.add({.text = [text = text] { return tr(text); },
                  .shortcut = QString::fromLatin1(shortcut),
                  .run = [this, key = key] { typeAfterwards(key); },
                  .isEnabled = [this] { return isAllowed(); }});
    }
    menu.addSeparator();
    menu.add({.text = [] { return tr("Find…"); },
              .shortcut = QStringLiteral("Ctrl+F"),
              .run = [this] { m_window.ask(Request::Find); },
              .isEnabled = [this] { return isAllowed(); }});
}

void Menus::addView() {
    MenuColumn& menu = addColumn(tr("View"));
    const auto place = [&](auto text, const char* shortcut, Place where) {
        menu.add({.text = text,
                  .shortcut = QString::fromLatin1(shortcut),
                  .run = [this, where] { m_window.goTo(where); },
                  .isEnabled = [this] { return isAllowed(); },
                  .isChecked = [this, where] { return m_window.place() == where; }});
    };
    place([] { return tr("Your Apps"); }, "Ctrl+1", Place::UserApps);
    place([] { return tr("System Apps"); }, "Ctrl+2", Place::SystemApps);
    place([] { return tr("Themes"); }, "Ctrl+3", Place::Themes);
    place([] { return tr("Fonts"); }, "Ctrl+4", Place::Fonts);
    menu.addSeparator();
    menu.add({.text = [] { return tr("Preview"); },
              .shortcut = QStringLiteral("Ctrl+Shift+P"),
              .run = [this] { m_window.setShowsPreview(!m_window.showsPreview()); },
              .isEnabled = [this] { return isAllowed(); },
              .isChecked = [this] { return m_window.showsPreview(); }});
}

void Menus::addWindow() {
    MenuColumn& menu = addColumn(tr("Window"));
    for (const auto& [text, shortcut, what] : {std::tuple(QT_TR_NOOP("Minimize"), "Ctrl+M", Request::Minimize),
                                               std::tuple(QT_TR_NOOP("Zoom"), "", Request::Zoom)}) {
        menu.add({.text = [text = text] { return tr(text); },
                  .shortcut = QString::fromLatin1(shortcut),
                  .run = [this, what = what] { m_window.ask(what); },
                  .isEnabled = [this] { return isAllowed(); }});
    }
}

void Menus::addHelp() {
    MenuColumn& menu = addColumn(tr("Help"));
    menu.add({.text = [] { return tr("Tavrik Help"); },
              .run = [this] { m_window.words()->open(InterfaceWords::Page::Help); },
              .isEnabled = [this] { return isAllowed(); }});
    for (const auto& [text, what] : {std::pair(QT_TR_NOOP("How Tavrik Works"), Request::Welcome),
                                     std::pair(QT_TR_NOOP("Check the Health…"), Request::Health),
                                     std::pair(QT_TR_NOOP("Leave Tavrik…"), Request::Leave)}) {
        menu.add({.text = [text = text] { return tr(text); },
                  .run = [this, what = what] { m_window.ask(what); },
                  .isEnabled = [this] { return isAllowed(); }});
    }
}

} // namespace tavrik
