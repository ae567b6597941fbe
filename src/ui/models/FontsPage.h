#pragma once

#include "platform/NotificationCenter.h"
#include "ui/models/FontStylesModel.h"
#include "ui/models/UiServices.h"
#include "ui/models/UserNames.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <string>
#include <vector>

namespace tavrik {

/// The place for styled alphabets. Choosing one stages it. Main thread.
class FontsPage : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(tavrik::FontStylesModel* styles READ styles CONSTANT)
    /// What a person types to see it in every style, in place of names of their own.
    Q_PROPERTY(QString sample READ sample WRITE setSample NOTIFY sampleChanged)
    /// What the names look like and what becomes of them, in a sentence.
    Q_PROPERTY(QString state READ state NOTIFY changed)
    /// What no style can write, in a sentence; empty when there is nothing.
    Q_PROPERTY(QString lackOfAll READ lackOfAll NOTIFY changed)
    /// Some style cannot write what another one can.
    Q_PROPERTY(bool hasLacks READ hasLacks NOTIFY changed)
    Q_PROPERTY(bool isStaged READ isStaged NOTIFY changed)
    Q_PROPERTY(bool isResetStaged READ isResetStaged NOTIFY changed)
    Q_PROPERTY(bool canReset READ canReset NOTIFY changed)

public:
    explicit FontsPage(const UiServices& with);

    FontStylesModel* styles() { return &m_styles; }

    const QString& sample() const { return m_sample; }

    void setSample(const QString& sample);
    QString state() const;
    QString lackOfAll() const;
    bool hasLacks() const;
    bool isStaged() const;
    bool isResetStaged() const;
    bool canReset() const;

    /// Reads the names anew, off the main thread: called whenever the place is shown.
    Q_INVOKABLE void refresh();

    /// Stages the style. The one that is staged already, and the one in effect, take back what is staged.
    Q_INVOKABLE void choose(const QString& style);
    /// Stages the return to plain names; once more, it takes that back.
    Q_INVOKABLE void reset();
    /// Leaves the names as they are.
    Q_INVOKABLE void takeBack();

Q_SIGNALS:
    void sampleChanged();
    void changed();

private:
    void show();
    QString sampleIn(const std::string& style) const;
    void noteLacks(const std::vector<std::string>& names);
    static QString lackOf(const std::vector<std::string>& names);

    const UiServices m_with;
    FontStylesModel m_styles;
    QString m_sample;
    UserNames m_names;
    std::vector<std::string> m_lackingInAll;         ///< names with characters that no style has
    std::vector<std::vector<std::string>> m_lacking; ///< the others, beside the styles that lack some
    std::vector<NotificationCenter::Observation> m_observations;
};

} // namespace tavrik
