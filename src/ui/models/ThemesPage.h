#pragma once

#include "ui/models/FolderImportModel.h"
#include "ui/models/OneTheme.h"
#include "ui/models/PictureDrop.h"
#include "ui/models/ThemeLook.h"
#include "ui/models/ThemeShelf.h"
#include "ui/models/ThemeWork.h"
#include "ui/models/ThemesModel.h"
#include "ui/models/UiServices.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <optional>
#include <vector>

namespace tavrik {

/// The place for themes: the library, one theme, and what goes in and out of it. Main thread.
class ThemesPage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(tavrik::ThemesModel* library READ library CONSTANT)
    Q_PROPERTY(tavrik::OneTheme* theme READ theme CONSTANT)
    Q_PROPERTY(tavrik::FolderImportModel* folderImport READ folderImport CONSTANT)
    Q_PROPERTY(tavrik::ThemeWork* work READ work CONSTANT)
    Q_PROPERTY(tavrik::PictureDrop* dragged READ dragged CONSTANT) ///< over an icon
    Q_PROPERTY(bool isLoaded READ isLoaded NOTIFY changed)
    Q_PROPERTY(tavrik::ThemeLook* look READ look CONSTANT)
    Q_PROPERTY(bool isCreating READ isCreating WRITE setCreating NOTIFY changed) ///< the sheet is shown
    Q_PROPERTY(QString createProblem READ createProblem NOTIFY changed)          ///< why no theme was made
    /// The file that an export waits to replace, until the person says so; empty when none does.
    Q_PROPERTY(QString fileToReplace READ fileToReplace NOTIFY changed)

public:
    ThemesPage(const UiServices& with, ThemeLook& look);

    ThemesModel* library() { return &m_library; }

    OneTheme* theme() { return &m_theme; }

    FolderImportModel* folderImport() { return &m_folderImport; }

    ThemeWork* work() { return &m_work; }

    PictureDrop* dragged() { return &m_dragged; }

    bool isLoaded() const { return m_shelf.isLoaded(); }

    ThemeLook* look() { return &m_look; }

    bool isCreating() const { return m_isCreating; }

    void setCreating(bool isCreating);

    QString createProblem() const { return m_createProblem; }

    QString fileToReplace() const;

    /// The view is there: from now on the themes are read.
    Q_INVOKABLE void open();

    Q_INVOKABLE void showTheme(const QString& themeID);
    Q_INVOKABLE void showLibrary();

    /// Why a new theme could not have this name; empty when it could, and while nothing is typed.
    Q_INVOKABLE QString nameProblem(const QString& name) const;
    Q_INVOKABLE void create(const QString& name, bool moveActiveIcons);

    /// Stages the theme's icons.
    Q_INVOKABLE void apply(const QString& themeID);

    /// Stages the deletion of a theme, and takes it back.
    Q_INVOKABLE void moveToBin(const QString& themeID);
    Q_INVOKABLE void keep(const QString& themeID);

    Q_INVOKABLE void importFiles(const QList<QUrl>& files);
    /// Into a new file. One that is there already is replaced only after a question: the panel's own, where the
    /// system's panel asks, or else one that waits for `replaceFile` or `keepFile`.
    Q_INVOKABLE void exportTheme(const QString& themeID, const QUrl& file);
    Q_INVOKABLE void replaceFile();
    Q_INVOKABLE void keepFile();
    /// What a theme's file is called unless the person says otherwise.
    Q_INVOKABLE QString exportName(const QString& themeID) const;

    /// What was let go on the library: theme files, or a folder of pictures.
    Q_INVOKABLE void drop(const QList<QUrl>& things);

Q_SIGNALS:
    void changed();

private:
    struct Export {
        QString themeID;
        QUrl file;
    };

    void update();
    void write(const Export& wanted);

    const UiServices m_with;
    ThemeLook& m_look;
    ThemeShelf m_shelf;
    ThemeWork m_work;
    ThemesModel m_library;
    OneTheme m_theme;
    FolderImportModel m_folderImport;
    PictureDrop m_dragged;
    bool m_isCreating = false;
    QString m_createProblem;
    std::optional<Export> m_waiting; ///< for an answer about the file that is there
};

} // namespace tavrik
