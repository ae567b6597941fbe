#pragma once

#include "ui/models/Background.h"
#include "ui/models/UiServices.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <utility>

namespace tavrik {

/// What a page of the settings window is doing, and what came of it, in a line each. A page does one thing at a
/// time. Main thread.
class PageWork : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    Q_PROPERTY(QString activity READ activity NOTIFY changed) ///< empty when nothing is done
    Q_PROPERTY(QString remark READ remark NOTIFY changed)     ///< empty when there is nothing to say
    Q_PROPERTY(bool isRemarkBad READ isRemarkBad NOTIFY changed)

public:
    /// Whether the main window can be used meanwhile.
    enum class Beside { edits, nothing };

    explicit PageWork(const UiServices& with) : m_with(with) {}

    bool isBusy() const { return !m_activity.isEmpty(); }

    const QString& activity() const { return m_activity; }

    const QString& remark() const { return m_remark; }

    bool isRemarkBad() const { return m_isRemarkBad; }

    /// Does what blocks in the background, and then hands its answer to `then`. Nothing while the page is busy.
    template<typename Work, typename Then>
    void run(const QString& activity, Beside beside, Work work, Then then) {
        if (isBusy())
            return;
        begin(activity, beside);
        m_with.background.run(this, std::move(work), [this, then = std::move(then)](auto... answer) mutable {
            end();
            then(std::move(answer)...);
        });
    }

    void tell(const QString& sentence) { show(sentence, false); }

    void fail(const QString& sentence) { show(sentence, true); }

    Q_INVOKABLE void dismiss() { show({}, false); }

Q_SIGNALS:
    void changed();

private:
    void begin(const QString& activity, Beside beside);
    void end();
    void show(const QString& sentence, bool isBad);

    const UiServices m_with;
    QString m_activity;
    QString m_remark;
    bool m_isRemarkBad = false;
    bool m_isBlocking = false;
};

} // namespace tavrik
