#pragma once

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace tavrik {

/// One line of a menu, with its shortcut. Main thread.
class MenuAction : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(QString text READ text NOTIFY changed)
    Q_PROPERTY(
        QString shortcut READ shortcut CONSTANT) ///< "Ctrl+Return", where Ctrl is the command key of a Mac
    Q_PROPERTY(bool isEnabled READ isEnabled NOTIFY changed)
    Q_PROPERTY(bool isChecked READ isChecked NOTIFY changed)
    Q_PROPERTY(bool isCheckable READ isCheckable CONSTANT)
    Q_PROPERTY(bool isSeparator READ isSeparator CONSTANT)
    Q_PROPERTY(Role role READ role CONSTANT)

public:
    /// Where a Mac puts it by itself.
    enum class Role { Plain, About, Program, Preferences, Quit };
    Q_ENUM(Role)

    /// What it says and does. What is left out is empty, allowed, and not checkable.
    struct Words {
        std::function<QString()> text;
        QString shortcut{};
        std::function<void()> run{};
        std::function<bool()> isEnabled{};
        std::function<bool()> isChecked{};
        Role role = Role::Plain;
    };

    explicit MenuAction(Words words, QObject* parent) : QObject(parent), m_words(std::move(words)) {}

    /// A line between two groups.
    explicit MenuAction(QObject* parent) : QObject(parent) {}

    QString text() const { return m_words.text ? m_words.text() : QString(); }

    QString shortcut() const { return m_words.shortcut; }

    bool isEnabled() const { return !m_words.isEnabled || m_words.isEnabled(); }

    bool isCheckable() const { return bool(m_words.isChecked); }

    bool isChecked() const { return m_words.isChecked && m_words.isChecked(); }

    bool isSeparator() const { return !m_words.text; }

    Role role() const { return m_words.role; }

    /// Nothing happens while it is not enabled.
    Q_INVOKABLE void trigger();

Q_SIGNALS:
    void changed();

private:
    Words m_words;
};

} // namespace tavrik
