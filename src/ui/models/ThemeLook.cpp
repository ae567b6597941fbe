#include "ui/models/ThemeLook.h"

#include "app/Managers.h"
#include "platform/Mac.h"
#include "ui/models/Background.h"

namespace tavrik {

ThemeLook::ThemeLook(const UiServices& with)
    : m_with(with),
      m_settings(with.managers.applyServices.mac.defaults),
      m_showsGrid(m_settings.previewStyle() == ThemePreviewStyle::grid),
      m_showsFileNames(m_settings.showsFileNames()) {}

void ThemeLook::setShowsGrid(bool shows) {
    m_showsGrid = shows;
    save();
}

void ThemeLook::setShowsFileNames(bool shows) {
    m_showsFileNames = shows;
    save();
}

void ThemeLook::save() {
    Q_EMIT changed();
    m_with.background.run(
        this,
        [settings = m_settings, style = m_showsGrid ? ThemePreviewStyle::grid : ThemePreviewStyle::scattered,
         names = m_showsFileNames]() mutable {
            settings.setPreviewStyle(style);
            settings.setShowsFileNames(names);
            return settings.previewStyle() == style && settings.showsFileNames() == names;
        },
        [this](bool isSaved) {
            m_problem = isSaved ? QString() : tr("This could not be saved. Is the disk full?");
            Q_EMIT changed();
        });
}

} // namespace tavrik
