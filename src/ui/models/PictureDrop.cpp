#include "ui/models/PictureDrop.h"

#include "icons/ImageIntake.h"
#include "platform/MainQueue.h"
#include "system/IconManager.h"
#include "ui/models/CoreWords.h"
#include "ui/models/HandedFile.h"
#include "ui/models/Text.h"

#include <QPointer>

#include <algorithm>

namespace tavrik {

namespace {

constexpr int kShownSide = 160; // pixels: a tile at three pixels per point

} // namespace

PictureDrop::~PictureDrop() {
    ++m_drag;
}

QString PictureDrop::pictureFormat(const QStringList& formats) {
    const auto found = std::ranges::find_if(
        formats, [](const QString& format) { return format.startsWith(QLatin1String("image/")); });
    return found == formats.end() ? QString() : *found;
}

void PictureDrop::look(const QList<QUrl>& files, const QByteArray& data) {
    const int drag = ++m_drag;
    m_shown = {};
    Q_EMIT changed();
    m_queue.async([this, self = QPointer<PictureDrop>(this), drag, files, data] {
        Look seen;
        const auto tell = [&] {
            MainQueue::async(self, [this, drag, seen] {
                if (m_drag != drag)
                    return;
                m_shown = seen;
                Q_EMIT changed();
            });
        };
        if (files.isEmpty()) {
            add(seen, Bytes(data.begin(), data.end()), tr("The picture"));
            tell();
        }
        for (const QUrl& file : files) {
            if (m_drag != drag)
                return;
            add(seen, readHandedFile(file), nameOfHandedFile(file));
            tell();
        }
    });
}

void PictureDrop::forget() {
    ++m_drag;
    m_shown = {};
    Q_EMIT changed();
}

void PictureDrop::add(Look& look, const Result<Bytes>& content, const QString& name) {
    const Result<QImage> picture =
        content ? readPicture(*content, name.toStdString()) : Result<QImage>(content.error());
    const auto squared = picture ? IconManager::squareIcon(*picture) : std::nullopt;
    if (squared) {
        ++look.count;
        if (look.picture.isNull())
            look.picture =
                squared->scaled(kShownSide, kShownSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    } else if (look.refusal.isEmpty()) {
        look.refusal = picture ? tr("“%1” cannot be made an icon.").arg(name)
                               : inTheirLanguage(picture.error().description);
    }
}

} // namespace tavrik
