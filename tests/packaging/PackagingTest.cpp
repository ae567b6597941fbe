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

    /// Stands in for a program that only a Mac has.
    void tool(const char* name, std::string_view script) const {
        write(name, "#!/bin/sh\n" + std::string(script));
        QFile::setPermissions(path(name), QFile::ReadOwner | QFile::ExeOwner);
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

TEST_F(Packaging, DeploysTheCompanionsPlatformAndRefusesALibraryThatIsNotInside) {
    tool("qmake", "dirname \"$0\"");
    tool("macdeployqt",
         "cd $1/Contents/PlugIns && mkdir imageformats tls && touch tls/libqopensslbackend.dylib && "
         "cd imageformats && "
         "touch libqicns.dylib libqsvg.dylib libqtiff.dylib libqwebp.dylib libqjpeg.dylib libqgif.dylib");
    tool("otool", "echo $2:; case $1$2 in -L*tavrikctl) cat $(dirname $0)/needed; esac");
    tool("plutil", "echo 11.0");
    QDir(path("platforms")).mkpath(QStringLiteral("."));
    write("platforms/libqoffscreen.dylib", "");
    const QByteArray before = qgetenv("PATH");
    qputenv("PATH", path(".").toUtf8() + ':' + before);

    const struct {
        const char* needed;
        int status;
    } cases[] = {{"/usr/lib/libz.dylib (v1)", 0},
                 {"/opt/homebrew/lib/libplist.dylib (v1)", 1},
                 {"@rpath/libplist.dylib (v1)", 1},
                 {"@rpath/libplist.dylib (v1, weak)", 0},
                 {"@executable_path/../PlugIns/platforms/libqoffscreen.dylib (v1)", 0}};

    for (const auto& [needed, status] : cases) {
        ASSERT_EQ(bundle(QStringLiteral("1.0")).status, 0);
        write("needed", needed);
        const Outcome outcome =
            run(QStringLiteral("deploy"), {QStringLiteral("--qmake"), path("qmake"), path("Tavrik.app")});
        EXPECT_EQ(outcome.status, status) << needed << ": " << qPrintable(outcome.output);
    }
    qputenv("PATH", before);
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
    EXPECT_FALSE(
        contentOf(kProject + QStringLiteral("/packaging/Tavrik.entitlements")).contains(QStringLiteral("<!--")))
        << "codesign refuses a remark";
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

    const auto isCovered = [&](QString file) {
        file.replace(QStringLiteral("/var/folders/XX/YYYY"), QStringLiteral("/private/var/folders/a/b"));
        return std::ranges::any_of(zapped, [&](const QString& pattern) {
            return file.startsWith(pattern + u'/') ||
                   QRegularExpression::fromWildcard(pattern).match(file).hasMatch();
        });
    };
    const QStringList lines = contentOf(kProject + QStringLiteral("/docs/architecture.md")).split(u'\n');
    int checked = 0;
    for (const QString& line : lines) {
        const QStringList cells = line.split(u'|');
        if (cells.size() < 4)
            continue;
        const QStringList quoted = cells[1].split(u'`');
        for (qsizetype at = 1; at < quoted.size(); at += 2) {
            const QString& file = quoted[at];
            if (!file.startsWith(u'/') && !file.startsWith(u'~')) // in the folder that a line above tells of
                continue;
            const bool isOurs = cells[2].trimmed().startsWith(QStringLiteral("ours"));
            EXPECT_EQ(isCovered(file), isOurs) << qPrintable(file);
            if (!isOurs || file.contains(QStringLiteral("com.apple.dock"))) {
                EXPECT_TRUE(isCovered(file + QStringLiteral(".new"))) << qPrintable(file) << ", being replaced";
            }
            ++checked;
        }
    }
    EXPECT_GT(checked, 12);
}

} // namespace tavrik::test
