#pragma once

#include <QLocale>
#include <QTranslator>

namespace tavrik {

/// The language of the window: the first of the person's for which there is a catalogue in `translations/`,
/// else English. The sources are English, but for singular and plural, which English has a small catalogue for.
/// Made once the application object is there, and before the first text is shown; leaves with it.
class Language {
public:
    explicit Language(const QLocale& locale = QLocale());
    ~Language();

    Language(const Language&) = delete;
    Language& operator=(const Language&) = delete;

private:
    QTranslator m_english;
    QTranslator m_own;
};

} // namespace tavrik
