#include "packaging/icon/AppIcon.h"
#include "platform/HostFile.h"
#include "platform/Icns.h"
#include "platform/PropertyList.h"
#include "support/TemporaryFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace tavrik::test {

namespace {

const QString kProject = QStringLiteral(PROJECT_FOLDER);

struct Outcome {
    int status;
    QString output; ///< what it says of errors included
};

Outcome run(const QString& script, const QStringList& words) {
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(kProject + QStringLiteral("/packaging/") + script, words);
    process.waitForFinished();
    return {process.exitCode(), QString::fromUtf8(process.readAll())};
}

QString contentOf(const QString& file) {
    const auto data = readHostFile(HostPath(file.toStdString()));
    return data ? QString::fromUtf8(QByteArrayView(data->data(), qsizetype(data->size()))) : QString();
}

class Packaging : public testing::Test {
protected:
    QString path(const char* name) const { return QString::fromStdString((m_folder.path() / name).string()); }

    void write(const char* name, std::string_view text) const {
        ASSERT_TRUE(writeHostFile(m_folder.path() / name, bytesOf(text)));
    }

    /// A bundle of programs that stand in for the real ones.
    Outcome bundle(const QString& version) const {
        write("program", "the program");
        write("companion", "the companion");
        write("icon", "the icon");
        return run(QStringLiteral("bundle"), {QStringLiteral("--version"), version, QStringLiteral("--program"),
                                              path("program"), QStringLiteral("--companion"), path("companion"),
                                              QStringLiteral("--icon"), path("icon"), path("Tavrik.app")});
    }

    TemporaryFolder m_folder;
};

} // namespace

TEST_F(Packaging, LaysOutABundleWhoseInformationLeadsToWhatIsInIt) {
    ASSERT_EQ(bundle(QStringLiteral("1.2.0")).status, 0);
    ASSERT_EQ(bundle(QStringLiteral("1.2.3")).status, 0) << "over one that is there";

    const QString contents = path("Tavrik.app/Contents") + u'/';
    const auto data = readHostFile(HostPath((contents + QStringLiteral("Info.plist")).toStdString()));
    ASSERT_TRUE(data);
    const auto info = plist::parse(*data);
    ASSERT_TRUE(info);
    const auto text = [&](const char* key) {
        const auto* found = info->find<std::string>(key);
        return found ? QString::fromStdString(*found) : QString();
    };
    EXPECT_EQ(text("CFBundleShortVersionString"), QStringLiteral("1.2.3"));
    EXPECT_EQ(text("CFBundleVersion"), QStringLiteral("1.2.3"));
    const QFileInfo program(contents + QStringLiteral("MacOS/") + text("CFBundleExecutable"));
    EXPECT_TRUE(program.isExecutable());
    EXPECT_EQ(contentOf(program.filePath()), QStringLiteral("the program"));
    EXPECT_TRUE(QFileInfo(contents + QStringLiteral("MacOS/tavrikctl")).isExecutable());
    EXPECT_EQ(
        contentOf(contents + QStringLiteral("Resources/") + text("CFBundleIconFile") + QStringLiteral(".icns")),
        QStringLiteral("the icon"));
    EXPECT_TRUE(
        contentOf(contents + QStringLiteral("Resources/Warning.rtf")).startsWith(QStringLiteral("{\\rtf1")));
}

TEST_F(Packaging, LeavesNothingBehindWhenSomethingIsMissing) {
    EXPECT_EQ(bundle(QStringLiteral("next")).status, 2);
    EXPECT_EQ(
        run(QStringLiteral("bundle"), {QStringLiteral("--version"), QStringLiteral("1.0"), path("Tavrik.app")})
            .status,
        2);
    EXPECT_EQ(run(QStringLiteral("sign"), {QStringLiteral("-"), path("Tavrik.app")}).status, 2);
    EXPECT_EQ(QDir(QString::fromStdString(m_folder.path().string()))
                  .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot)
                  .size(),
              3);
}

TEST_F(Packaging, SignsFromTheInsideOutAndGivesTheProgramAloneItsEntitlement) {
    ASSERT_EQ(bundle(QStringLiteral("1.0")).status, 0);
    QDir(path("Tavrik.app/Contents")).mkpath(QStringLiteral("PlugIns/platforms"));
    write("Tavrik.app/Contents/PlugIns/platforms/libqcocoa.dylib", "");

    const Outcome outcome =
        run(QStringLiteral("sign"), {QStringLiteral("--print"),
                                     QStringLiteral("Developer ID Application: Some One"), path("Tavrik.app")});
    ASSERT_EQ(outcome.status, 0);
    const QStringList lines = outcome.output.split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 4);
    const char* const order[] = {"libqcocoa.dylib", "MacOS/tavrikctl", "Tavrik.app", "Tavrik.app"};
    for (qsizetype at = 0; at < 4; ++at) {
        EXPECT_TRUE(lines[at].endsWith(QString::fromUtf8(order[at]))) << qPrintable(lines[at]);
        EXPECT_EQ(lines[at].contains(QStringLiteral("--options runtime")), at < 3);
        EXPECT_EQ(lines[at].contains(QStringLiteral(".entitlements")), at == 2);
    }
}

TEST(PackagedIcon, HasEverySizeThatAMacAsksFor) {
    const Bytes icon = appIcon();
    std::set<int> widths;
    for (const icns::Representation& representation : icns::representations(icon)) {
        const QImage picture = icns::decode(icon, representation);
        EXPECT_EQ(picture.width(), representation.width);
        EXPECT_EQ(qAlpha(picture.pixel(0, 0)), 0) << "a corner is free";
        EXPECT_EQ(qAlpha(picture.pixel(picture.width() / 2, picture.height() / 2)), 255);
        widths.insert(representation.width);
    }
    EXPECT_EQ(widths, (std::set{16, 32, 64, 128, 256, 512, 1024}));
}

/// The list of the files on disk, as the documentation has it, against what the recipe takes away.
TEST(Cask, TakesAwayEveryFileOfOurs) {
    const QString recipe = contentOf(kProject + QStringLiteral("/packaging/homebrew/tavrik.rb"));
    QStringList zapped;
    for (auto match =
             QRegularExpression(QStringLiteral("^ +\"([~/][^\"]+)\",$"), QRegularExpression::MultilineOption)
                 .globalMatch(recipe);
         match.hasNext();)
        zapped << match.next().captured(1);
    ASSERT_GT(zapped.size(), 5);

    const QString support = QStringLiteral("~/Library/Application Support/com.tavrik.Tavrik");
    const QStringList lines = contentOf(kProject + QStringLiteral("/docs/architecture.md")).split(u'\n');
    int checked = 0;
    for (const QString& line : lines) {
        const QStringList cells = line.split(u'|');
        if (cells.size() < 4 || !cells[2].trimmed().startsWith(QStringLiteral("ours")))
            continue;
        const QString file = cells[1].split(u'`').value(1);
        if (file.startsWith(u'…')) // beside what the lines above it tell of
            continue;
        const bool covered = std::ranges::any_of(zapped, [&](const QString& pattern) {
            const QString place = QString(file).replace(QStringLiteral("/var/folders/XX/YYYY"),
                                                        QStringLiteral("/private/var/folders/a/b"));
            return place.startsWith(pattern + u'/') ||
                   QRegularExpression::fromWildcard(pattern).match(place).hasMatch();
        });
        EXPECT_TRUE(covered) << qPrintable(file);
        ++checked;
    }
    EXPECT_GT(checked, 5);
    EXPECT_TRUE(zapped.contains(support));
    for (const char* store : {"/db/db\"", "com.apple.dock.plist\""})
        EXPECT_FALSE(recipe.contains(QString::fromUtf8(store))) << "the Dock's own";
}

} // namespace tavrik::test
