#include "UiStage.h"
#include "ui/models/CoreCatalogue.h"
#include "ui/models/CoreWords.h"
#include "ui/models/Text.h"
#include "ui/screens/PseudoLocale.h"
#include "ui/screens/Scene.h"

#include <QAccessible>
#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include <chrono>
#include <future>
#include <set>

namespace tavrik::test {

using namespace std::chrono_literals;

namespace {

/// What stands on the screen and what a screen reader says.
void collect(QQuickItem* item, std::set<QString>& texts) {
    if (!item->isVisible())
        return;
    for (const char* const property : {"text", "placeholderText"})
        texts.insert(item->property(property).toString());
    if (QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(item)) {
        for (const auto kind : {QAccessible::Name, QAccessible::Description})
            texts.insert(accessible->text(kind));
    }
    for (QQuickItem* const child : item->childItems())
        collect(child, texts);
}

} // namespace

/// The window in a language whose every vowel has an accent.
class Translation : public UiStage {
protected:
    Translation() { QCoreApplication::installTranslator(&m_language); }

    ~Translation() override { QCoreApplication::removeTranslator(&m_language); }

    /// Without what the person, an application's maker or the system has named.
    QString withoutNames(QString text) {
        static const QRegularExpression paths(QStringLiteral("/[\\w/. -]+|[\\w-]+(\\.[\\w-]+)+"));
        text.remove(paths);
        for (const QString& name : m_names)
            text.remove(name);
        return text;
    }

    void readNames() {
        m_names.clear();
        Managers& managers = program->managers();
        auto reading = std::async(std::launch::async, [&] {
            return std::pair(managers.apps.loadApplications(), managers.themes.library().load());
        });
        ASSERT_TRUE(waitFor([&] { return reading.wait_for(0s) == std::future_status::ready; }));
        const auto [apps, themes] = reading.get();
        for (const ApplicationInfo& app : apps)
            m_names << toQString(managers.fonts.fontReplacer().convertToNormal(app.name)) << toQString(app.name)
                    << toQString(app.bundleID);
        for (const Theme& theme : themes)
            m_names << toQString(theme.name);
        for (const FontReplacer::FontMap& style : managers.fonts.fontReplacer().allFontMaps())
            m_names << toQString(style.name);
        for (const char* const folder : {"Utilities", "Studio", "Under Way", "Downloads", "Tavrik", "Windlass",
                                         "Ferrule copy", "Zeppelin", "Candy", "Hello, Launchpad"})
            m_names << QString::fromLatin1(folder);
        m_names << model().updates()->offer()->notes();
        for (int month = 1; month <= 12; ++month)
            m_names << QLocale().monthName(month, QLocale::ShortFormat);
        std::ranges::sort(m_names, std::greater(), &QString::size);
    }

private:
    PseudoLocale m_language;
    QStringList m_names;
};

TEST_F(Translation, LeavesNoTextOfAnySceneInEnglish) {
    QAccessible::setActive(true);
    start();
    const QRegularExpression english(QStringLiteral("[A-Za-z]*[aeiou][a-z]+"));
    for (const Scene& scene : allScenes()) {
        QQuickWindow* const shown = scene.show(*program);
        settled(shown);
        readNames();
        std::set<QString> texts;
        collect(shown->contentItem(), texts);
        QStringList left;
        for (const QString& text : texts) {
            if (withoutNames(text).contains(english))
                left.append(text);
        }
        EXPECT_EQ(left.join(QLatin1Char('\n')).toStdString(), "") << scene.name.toStdString();
    }
}

TEST_F(Translation, FindsReasonsAndNamesWithinWhatTheCoreSays) {
    const std::pair<const char*, const char*> sentences[] = {
        {"The Launchpad database is missing.", "Thé Láúñçhpád dátábásé ís míssíñg."},
        {"The Launchpad database cannot be read: it is not there.",
         "Thé Láúñçhpád dátábásé çáññót bé réád: ít ís ñót théré."},
        {"“100%1.png” is empty. Copy, export or download it again.",
         "“100%1.png” ís émpty. Çópy, éxpórt ór dówñlóád ít ágáíñ."},
        {"Atlas: its own -> icon 3", "Atlas: íts ówñ -> íçóñ 3"},
        {"Names", "Ñámés"},
        {"The names are in Names, by the settings.", "Thé ñámés áré íñ Names, by thé séttíñgs."},
        {"No such file or directory", "No such file or directory"},
    };
    for (const auto& [english, translated] : sentences)
        EXPECT_EQ(inTheirLanguage(english).remove(QLatin1Char('~')).toStdString(), translated);
}

TEST(Catalogues, SendNobodyFromTheWindowToTheCompanion) {
    const auto values = [](QString text) { return text.remove(QRegularExpression(QStringLiteral("[^%1-9]"))); };
    for (const char* const sentence : coreSentences())
        EXPECT_FALSE(QString::fromUtf8(sentence).contains(QLatin1String("tavrikctl"))) << sentence;
    for (const Reworded& sentence : rewordedSentences()) {
        const QString shown = inTheirLanguage(sentence.told);
        EXPECT_FALSE(shown.contains(QLatin1String("tavrikctl"))) << sentence.told;
        EXPECT_EQ(values(shown), values(QString::fromUtf8(sentence.told))) << sentence.told;
    }
}

/// A catalogue as it is edited, beside what was compiled of it.
TEST(Catalogues, AreWholeCompiledAndKeepThePlacesOfValues) {
    for (const char* const code : {"de", "en"}) {
        QTranslator compiled;
        ASSERT_TRUE(compiled.load(QStringLiteral(":/translations/%1.qm").arg(QLatin1String(code))));
        QFile file(QStringLiteral(QT_TESTCASE_SOURCEDIR "/../../translations/%1.ts").arg(QLatin1String(code)));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QXmlStreamReader xml(&file);
        const QRegularExpression place(QStringLiteral("%[0-9n]"));
        const auto places = [&place](const QString& text) {
            std::set<QString> found;
            for (auto matches = place.globalMatch(text); matches.hasNext();)
                found.insert(matches.next().captured());
            return found;
        };
        QByteArray context;
        QString source;
        int texts = 0;
        while (!xml.atEnd()) {
            if (xml.readNext() != QXmlStreamReader::StartElement)
                continue;
            if (xml.name() == QLatin1String("name"))
                context = xml.readElementText().toUtf8();
            else if (xml.name() == QLatin1String("source"))
                source = xml.readElementText();
            else if (xml.name() == QLatin1String("translation")) {
                EXPECT_FALSE(xml.attributes().hasAttribute(QLatin1String("type"))) << source.toStdString();
                const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements).trimmed();
                const bool isCounted = text.contains(QLatin1Char('\n')) && source.contains(QLatin1String("%n"));
                if (isCounted || source.contains(QLatin1String("(s)")))
                    continue;
                ++texts;
                EXPECT_EQ(places(text), places(source)) << source.toStdString();
                EXPECT_EQ(compiled.translate(context, source.toUtf8()).trimmed(), text) << source.toStdString();
            }
        }
        EXPECT_FALSE(xml.hasError());
        EXPECT_TRUE(texts > 0 || code == std::string("en"));
        EXPECT_FALSE(compiled.translate("ApplicationsBar", "%n app(s)", nullptr, 1).isEmpty());
    }
}

} // namespace tavrik::test
