#pragma once

#include "platform/Bytes.h"
#include "platform/Result.h"
#include "platform/SerialQueue.h"

#include <QImage>
#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

#include <atomic>

namespace tavrik {

/// Pictures that are dragged over the window: what they would become as icons, or why they would be refused,
/// before they are let go. Main thread; files are read and decoded elsewhere.
class PictureDrop : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the program")
    Q_PROPERTY(bool hasPicture READ hasPicture NOTIFY changed)
    /// How many could be taken in.
    Q_PROPERTY(int count READ count NOTIFY changed)
    /// Why the first of those that would be refused would be, in a sentence; empty when none would.
    Q_PROPERTY(QString refusal READ refusal NOTIFY changed)

public:
    /// Drops what is queued.
    ~PictureDrop() override;

    /// The first of them that can be taken in, squared; null while there is none.
    const QImage& picture() const { return m_shown.picture; }

    bool hasPicture() const { return !m_shown.picture.isNull(); }

    int count() const { return m_shown.count; }

    QString refusal() const { return m_shown.refusal; }

    /// Among the formats of a drag the one that holds a picture itself, for drags without files; may be empty.
    Q_INVOKABLE static QString pictureFormat(const QStringList& formats);

    /// Begins to look at files, or at a picture's own data when there are none.
    Q_INVOKABLE void look(const QList<QUrl>& files, const QByteArray& data);
    /// The drag went elsewhere.
    Q_INVOKABLE void forget();

Q_SIGNALS:
    void changed();

private:
    struct Look {
        QImage picture{};
        int count = 0;
        QString refusal{};
    };

    static void add(Look& look, const Result<Bytes>& content, const QString& name);

    Look m_shown;
    std::atomic<int> m_drag = 0;             ///< counts drags: an answer to an earlier one is dropped
    SerialQueue m_queue{"com.tavrik.drops"}; ///< last: runs out before the rest goes
};

} // namespace tavrik
