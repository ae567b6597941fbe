#pragma once

#include "themes/FolderImport.h"
#include "ui/models/KeyedRows.h"
#include "ui/models/UiServices.h"

#include <QString>
#include <QStringList>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <map>
#include <string>

namespace tavrik {

class ThemeWork;
struct Managers;

/// An application and the picture of the folder that is for it.
struct FolderImportRow {
    IconMatch match;
    MacPath appPath;
    int alternatives = 0; ///< other pictures that fit as well
    bool isSure = false;
    bool isTicked = false;

    const std::string& key() const { return match.bundleID; }

    bool operator==(const FolderImportRow&) const = default;
};

/// A folder of pictures on its way to a theme: what was matched, for a person to look at before anything is
/// written. Sure matches are ticked, guesses are not. Main thread.
class FolderImportModel : public KeyedRows<FolderImportRow> {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(Phase phase READ phase NOTIFY changed)
    Q_PROPERTY(QString folderName READ folderName NOTIFY changed)
    Q_PROPERTY(QString themeName READ themeName WRITE setThemeName NOTIFY changed)
    Q_PROPERTY(QString problem READ problem NOTIFY changed) ///< with the name, or what went wrong
    Q_PROPERTY(int matchCount READ matchCount NOTIFY changed)
    Q_PROPERTY(int tickedCount READ tickedCount NOTIFY changed)
    Q_PROPERTY(int guessCount READ guessCount NOTIFY changed)
    Q_PROPERTY(bool takesGuesses READ takesGuesses WRITE setTakesGuesses NOTIFY changed)
    Q_PROPERTY(QString unmatched READ unmatched NOTIFY changed) ///< the files that fit none, in a sentence
    Q_PROPERTY(bool canTake READ canTake NOTIFY changed)

public:
    enum Phase { Closed, Reading, Review, Writing };
    Q_ENUM(Phase)

    enum Role {
        PictureRole = Qt::UserRole, ///< a path of the host
        FileNameRole,
        AppNameRole,
        AppPathRole,
        KindRole, ///< in words, with the score of a guess
        IsDoubtfulRole,
        IsTickedRole,
    };

    FolderImportModel(const UiServices& with, ThemeWork& work);

    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    Phase phase() const { return m_phase; }

    QString folderName() const;

    QString themeName() const { return m_themeName; }

    void setThemeName(const QString& name);

    QString problem() const { return m_problem; }

    int matchCount() const { return rowCount(); }

    int tickedCount() const;
    int guessCount() const;

    /// Whether all guesses are ticked.
    bool takesGuesses() const;
    void setTakesGuesses(bool takes);

    QString unmatched() const;

    bool canTake() const { return m_phase == Review && m_problem.isEmpty() && tickedCount() > 0; }

    /// Reads and matches the folder.
    Q_INVOKABLE void begin(const QUrl& folder);
    Q_INVOKABLE void setTicked(int row, bool isTicked);
    /// Makes the theme of what is ticked.
    Q_INVOKABLE void take();
    Q_INVOKABLE void cancel();

Q_SIGNALS:
    void changed();
    void taken(const QString& themeID);

private:
    struct Reviewed;

    static Result<Reviewed> review(const HostPath& folder, Managers& managers);
    void show(Reviewed reviewed);
    void checkName();
    void setPhase(Phase phase);

    const UiServices m_with;
    ThemeWork& m_work;
    Phase m_phase = Closed;
    HostPath m_folder;
    PictureFolder m_pictures;
    std::vector<IconMatch> m_alternatives;
    QStringList m_unmatched;
    QString m_themeName;
    QString m_problem;
    int m_round = 0; ///< of reading: an answer of an earlier one is not wanted any more
};

} // namespace tavrik
