#include "ui/Language.h"

#include <QCoreApplication>

namespace tavrik {

namespace {

void install(QTranslator& translator, const QLocale& locale) {
    if (translator.load(locale, QString(), QString(), QStringLiteral(":/translations")))
        QCoreApplication::installTranslator(&translator);
}

} // namespace

Language::Language(const QLocale& locale) {
    install(m_english, QLocale(QLocale::English));
    if (locale.language() != QLocale::English)
        install(m_own, locale);
}

Language::~Language() {
    for (QTranslator* const translator : {&m_own, &m_english})
        QCoreApplication::removeTranslator(translator);
}

} // namespace tavrik
