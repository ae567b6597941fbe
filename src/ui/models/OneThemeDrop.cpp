#include "app/Managers.h"
#include "themes/HostPictures.h"
#include "ui/models/Background.h"
#include "ui/models/HandedFile.h"
#include "ui/models/Images.h"
#include "ui/models/Notices.h"
#include "ui/models/OneTheme.h"
#include "ui/models/PicturesForTheme.h"
#include "ui/models/Text.h"
#include "ui/models/ThemeShelf.h"
#include "ui/models/ThemeWork.h"

namespace tavrik {

void OneTheme::drop(const QList<QUrl>& pictures, const QString& bundleID) {
    if (!facts() || m_isToBeRemoved)
        return;
    PicturesForTheme dropped{.theme = m_theme, .files = {}, .bundleID = bundleID.toStdString()};
    for (const QUrl& url : pictures) {
        const QString file = nameOfHandedFile(url);
        if (!isPictureName(file.toStdString())) {
            m_with.notices.refuse(
                tr("“%1” is no picture that can be taken in. PNG, JPEG, SVG, ICNS and the like can.")
                    .arg(file));
            return;
        }
        dropped.files.append(url);
    }
    if (dropped.files.empty() || !m_work.begin(tr("Adding icons…"), m_theme.themeID))
        return;
    m_with.background.run(
        this,
        [&managers = m_with.managers, dropped = std::move(dropped), apps = m_shelf.reading().apps] {
            return takePictures(dropped, apps, managers);
        },
        [this](const DropAnswer& answer) {
            if (answer.added == 0 && answer.refused.size() == 1)
                m_work.fail(answer.refused.front());
            else if (!answer.refused.empty())
                m_work.fail(tr("%n icon(s) added.", "", static_cast<int>(answer.added)), answer.refused);
            else
                m_work.end({});
            m_with.images.raiseRevision();
            m_shelf.reload();
        });
}

} // namespace tavrik
