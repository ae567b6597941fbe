#include "practice/picture/Look.h"

#include "fonts/FontReplacer.h"

#include <QGlyphRun>
#include <QGuiApplication>
#include <QRawFont>
#include <QTextLayout>

#include <gtest/gtest.h>

namespace tavrik::practice::test {

TEST(Look, DrawsEveryStyledAlphabetFromOneFamily) {
    int count = 0;
    char* none = nullptr;
    const QGuiApplication application(count, &none);
    const FontReplacer fonts;
    for (const FontReplacer::FontMap& map : fonts.allFontMaps()) {
        const QString title = QString::fromStdString(
            fonts.convert(std::string("abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ") +
                              (map.digits ? "0123456789" : ""),
                          map.name));
        QTextLayout layout(title, Look::fontFor(title, Look(Appearance::light).titleFont));
        layout.beginLayout();
        layout.createLine();
        layout.endLayout();
        QStringList families;
        for (const QGlyphRun& run : layout.glyphRuns()) {
            families << run.rawFont().familyName();
            EXPECT_FALSE(run.glyphIndexes().contains(0)) << map.name << ": a letter has no shape";
        }
        families.removeDuplicates();
        EXPECT_EQ(families.size(), 1) << map.name << ": " << families.join(QLatin1Char(',')).toStdString();
    }
}

} // namespace tavrik::practice::test
