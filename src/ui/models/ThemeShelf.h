#pragma once

#include "platform/NotificationCenter.h"
#include "ui/models/ThemeIconRow.h"
#include "ui/models/ThemeReading.h"
#include "ui/models/UiServices.h"

#include <QObject>

#include <vector>

namespace tavrik {

/// What is known of the themes: as they lie on disk, read off the main thread, and with what is staged, as of
/// now. Reads nothing before it is opened; from then on it follows every change. Main thread.
class ThemeShelf : public QObject {
    Q_OBJECT

public:
    explicit ThemeShelf(const UiServices& with);

    void open();

    /// Reads anew; while a reading is under way, once more after it.
    void reload();

    bool isLoaded() const { return m_isLoaded; }

    const ThemeReading& reading() const { return m_reading; }

    std::vector<ThemeIconRow> rowsOf(const ThemeFacts& theme) const;

Q_SIGNALS:
    void changed();

private:
    const UiServices m_with;
    ThemeReading m_reading;
    bool m_isOpen = false;
    bool m_isLoaded = false;
    bool m_isReading = false;
    bool m_isOutdated = false;
    std::vector<NotificationCenter::Observation> m_observations;
};

} // namespace tavrik
