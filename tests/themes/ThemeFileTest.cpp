#include "themes/ThemeFile.h"

#include "platform/Icns.h"
#include "platform/Png.h"
#include "themes/ThemeManifest.h"
#include "themes/ZipFormat.h"
#include "themes/ZipWriter.h"

#include <QProcess>

#include <gmock/gmock.h>
#include <libdeflate.h>

#include <algorithm>
#include <optional>
#include <vector>

namespace tavrik::test {

namespace {

using testing::HasSubstr;

const std::string kIcon = "Icons/com.example.atlas.png";
const Theme kTheme{.themeID = "abcdefgh01234567", .name = "Océan", .createdDate = {794'000'000.123456}};

QImage drawn(int width, int height) {
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::red);
    return image;
}

Bytes picture(int width = 2, int height = 2) {
    return *png::encode(drawn(width, height));
}

const ThemePackage kPackage{.theme = kTheme,
                            .icons = {{"com.example.atlas.png", picture(3, 3)},
                                      {"com.example.zebra.icns", icns::encode(drawn(16, 16))},
                                      {"com.example.été.png", picture(1, 1)}}};

using Entries = std::vector<std::pair<std::string, Bytes>>;

Bytes archived(const Entries& entries) {
    zip::Writer writer;
    for (const auto& [name, content] : entries)
        writer.add(name, content);
    return writer.finish();
}

const Entries kRecord{{"Info.plist", *encodeTheme(kTheme)}};

/// The record with these icons.
Entries good(const Entries& more = {{kIcon, picture()}}) {
    Entries entries = kRecord;
    entries.insert(entries.end(), more.begin(), more.end());
    return entries;
}

Entries with(const std::string& name, const Bytes& content = picture()) {
    return good({{kIcon, picture()}, {name, content}});
}

ManifestEntries listOf(const Entries& entries) {
    ManifestEntries lines;
    for (const auto& [name, content] : entries)
        lines[name] = {.size = content.size(), .hash = sha256(content)};
    return lines;
}

/// With a manifest of what is in it, or of these lines, before the rest.
Bytes themeFile(Entries entries, const std::optional<ManifestEntries>& lines = {}) {
    const auto manifest = encodeManifest(lines ? *lines : listOf(entries)); // XML cannot hold every name
    entries.emplace(entries.begin(), "Manifest.plist", manifest ? *manifest : Bytes());
    return archived(entries);
}

constexpr std::ptrdiff_t kUnused = 4; ///< the version needed, which nobody looks at

/// The file with other bytes in both headers of its last entry, at these places.
Bytes patched(Bytes file, std::ptrdiff_t local, std::ptrdiff_t central, const Bytes& bytes) {
    for (const auto& [header, place] : {std::pair{std::string_view("PK\3\4"), local}, {"PK\1\2", central}})
        std::ranges::copy(bytes, std::find_end(file.begin(), file.end(), header.begin(), header.end()) + place);
    return file;
}

/// The icon is so many zeros, deflated; both headers and the manifest claim another size.
Bytes deflated(std::size_t zeros, std::uint32_t claimed) {
    const Bytes plain(zeros);
    libdeflate_compressor* compressor = libdeflate_alloc_compressor(1);
    Bytes packed(libdeflate_deflate_compress_bound(compressor, zeros));
    packed.resize(libdeflate_deflate_compress(compressor, plain.data(), zeros, packed.data(), packed.size()));
    libdeflate_free_compressor(compressor);
    ManifestEntries lines = listOf(kRecord);
    lines[kIcon] = {.size = claimed, .hash = sha256(plain)};
    Bytes size;
    zip::appendLittleEndian(size, claimed);
    return patched(patched(themeFile(good({{kIcon, packed}}), lines), 22, 24, size), 8, 10,
                   {zip::kDeflated, 0});
}

Bytes withIcons(std::size_t count, const Bytes& icon = picture()) {
    Entries icons;
    while (icons.size() < count)
        icons.emplace_back("Icons/app" + std::to_string(icons.size()) + ".png", icon);
    return themeFile(good(icons));
}

Bytes cut(Bytes bytes, std::size_t by) {
    bytes.resize(bytes.size() - by);
    return bytes;
}

/// Reads an archive and writes it anew: compressed, with the folder and an extra field, and, because to a pipe,
/// with the sizes behind the content.
constexpr const char* kOtherProgram = R"(
import io, sys, zipfile
ours = zipfile.ZipFile(io.BytesIO(sys.stdin.buffer.read()))
with zipfile.ZipFile(sys.stdout.buffer, 'w') as theirs:
    theirs.writestr('Icons/', '')
    for name in ours.namelist():
        entry = zipfile.ZipInfo(name)
        entry.extra = b'UT\5\0\1\0\0\0\0'
        theirs.writestr(entry, ours.read(name), zipfile.ZIP_DEFLATED)
)";

} // namespace

TEST(ThemeFile, ComesBackAsItWasAndIsWrittenTheSameAgain) {
    for (const ThemePackage& whole : {kPackage, ThemePackage{.theme = kTheme, .icons = {}}}) {
        const auto file = writeThemeFile(whole);
        const auto read = readThemeFile(*file, "Ocean.tavriktheme");
        ASSERT_TRUE(read) << read.error().description;
        EXPECT_EQ(*read, whole);
        EXPECT_EQ(*writeThemeFile(*read), *file);
    }
}

TEST(ThemeFile, IsReadAndWrittenByAnotherZipProgram) {
    const Bytes file = *writeThemeFile(kPackage);
    QProcess python;
    python.start(QStringLiteral("python3"), {QStringLiteral("-c"), QString::fromUtf8(kOtherProgram)});
    python.write(reinterpret_cast<const char*>(file.data()), std::ssize(file));
    python.closeWriteChannel();
    ASSERT_TRUE(python.waitForFinished());
    const QByteArray other = python.readAllStandardOutput();
    EXPECT_LT(other.size(), std::ssize(file)) << "nothing was compressed";
    const auto read = readThemeFile(Bytes(other.begin(), other.end()), "other");
    ASSERT_TRUE(read) << read.error().description << python.readAllStandardError().toStdString();
    EXPECT_EQ(*read, kPackage);
}

TEST(ThemeFile, RefusesWhatIsNoThemeWithASentence) {
    const Bytes file = themeFile(good());
    ASSERT_TRUE(readThemeFile(file, "x"));
    ASSERT_TRUE(readThemeFile(withIcons(kMostThemeIcons), "x"));
    const std::string invalid = "Invalid theme format: “x” ";
    const std::string missing = "Theme is missing required files: “x” has no ";
    ManifestEntries longer = listOf(good()), changed = longer, more = longer;
    longer[kIcon].size += 1;
    std::ranges::reverse(changed[kIcon].hash);
    more["Icons/other.png"] = {};
    Bytes twoNames = file;
    *std::ranges::search(twoNames, bytesOf("Manifest")).begin() = 'm';
    const Bytes largeHeader = cut(picture(4096, 4096), picture(4096, 4096).size() - 40);
    const auto listed = [](const std::string& manifest) {
        return archived({{"Manifest.plist", Bytes(manifest.begin(), manifest.end())}});
    };
    const auto versioned = [&](const std::string& version) {
        return listed("<plist version=\"1.0\"><dict><key>formatVersion</key><integer>" + version +
                      "</integer><key>news</key><true/></dict></plist>");
    };
    const auto withIcon = [](const std::string& name, const Bytes& content) {
        return themeFile(with("Icons/" + name, content));
    };
    const std::string twice = "two files that a Mac takes for one";

    const std::vector<std::pair<Bytes, std::string>> cases{
        {{}, invalid + "is no zip archive"},
        {{'P', 'K'}, invalid + "is cut short"},
        {cut(file, 1), invalid + "is cut short, or has something behind its end"},
        {themeFile(with(kIcon)), twice},
        {themeFile(with("Icons/com.example.Atlas.PNG")), twice},
        {themeFile(good({{"Icons/\u00E9.png", {}}, {"Icons/e\u0301.png", {}}})), twice},
        {themeFile(good({{"Icons/straße.png", {}}, {"Icons/STRASSE.png", {}}})), twice},
        {patched(file, 6, 8, {1, 0}), invalid + "is encrypted"},
        {patched(file, 6, 8, {0, 0x20}), invalid + "is encrypted"},
        {patched(file, 8, 10, {93, 0}), invalid + "is compressed in a way that cannot be read"},
        {patched(file, kUnused, 41, {0xA1}), invalid + "holds a link"},
        {patched(file, kUnused, 41, {0x41}), invalid + "holds a link"},
        {twoNames, invalid + "is damaged"},
        {themeFile({{kIcon, picture()}}), missing + "“Info.plist”"},
        {themeFile(good(), more), missing + "“Icons/other.png”"},
        {archived(kRecord), missing + "“Manifest.plist”"},
        {themeFile(good(), listOf(kRecord)), "“Icons/com.example.atlas.png”, which its manifest does not list"},
        {themeFile(good(), longer), "in another size than its manifest says"},
        {themeFile(good(), changed), "which is not the one that its manifest lists"},
        {patched(file, 14, 16, {1, 2, 3, 4}), "which is damaged"},
        {deflated(10, 32u << 20), "which is damaged"},
        {deflated(1 << 20, 1000), "which is damaged"},
        {deflated(100, 101), "which is damaged"},
        {deflated(33u << 20, 33u << 20), "which is larger than 32 MB"},
        {withIcons(kMostThemeIcons + 1), invalid + "holds more than 5000 icons"},
        {withIcons(kMostThemeIcons + 9), invalid + "holds more than 5003 files"},
        {withIcons(513, largeHeader), invalid + "holds too many large pictures"},
        {versioned("0"), invalid + "has a damaged manifest"},
        {versioned("1"), invalid + "has a damaged manifest"},
        {listed("formatVersion"), invalid + "has a damaged manifest"},
        {versioned("2"), invalid + "has the format 2 of a newer version of Tavrik"},
        {themeFile({{"Info.plist", {'{', '}'}}}), "Invalid theme format: "},
        {withIcon("a.png", cut(picture(), 12)), "“a.png” is cut short"},
        {withIcon("a.png", icns::encode(drawn(16, 16))), "“a.png” is no PNG picture"},
        {withIcon("a.icns", picture()), "“a.icns” is no ICNS picture"},
        {withIcon("a.icns", {'i', 'c', 'n', 's'}), "“a.icns” is an icon file without a picture"},
        {withIcon("a.png", picture(4097, 1)), "“a.png” is 4097 by 1 pixels"},
    };
    for (const auto& [wrong, sentence] : cases) {
        const auto read = readThemeFile(wrong, "x");
        EXPECT_THAT(read ? "taken in" : read.error().description, HasSubstr(sentence));
    }
}

TEST(ThemeFile, TakesNoNameThatLeadsElsewhereOrHides) {
    using namespace std::string_literals;
    for (const std::string& unsafe :
         {""s, "/Info.plist"s, "../Info.plist"s, "Icons/../a.png"s, "Icons/./a.png"s, "Icons//a.png"s,
          "Icons\\a.png"s, "C:a.png"s, "Icons/a:b.png"s, "Icons/a\n.png"s, "Icons/a\0.png"s, "Icons/\xC3.png"s,
          "Icons/-a.png"s, "Icons/" + std::string(256, 'a')}) {
        const auto read = readThemeFile(themeFile(with(unsafe)), "x");
        EXPECT_THAT(read ? "" : read.error().description, HasSubstr("which is not safe")) << unsafe;
    }
    for (const std::string foreign :
         {"Icons/a.txt", "Icons/.png", "Icons/.a.png", "Icons/sub/a.png", "Icons/sub/", "Icons/a\u202E.png",
          "a.png", "__MACOSX/Icons/a.png", "Info.plist/"}) {
        Bytes file = themeFile(with(foreign, foreign.ends_with('/') ? Bytes() : picture()));
        if (foreign.ends_with('/'))
            file = patched(file, kUnused, 40, {0, 0}); // of no type
        const auto read = readThemeFile(file, "x");
        EXPECT_THAT(read ? "" : read.error().description, HasSubstr("which does not belong in a theme"));
        const std::string name = foreign.substr(foreign.find('/') + 1);
        EXPECT_FALSE(foreign.starts_with("Icons/") && writeThemeFile({kTheme, {{name, picture()}}})) << foreign;
    }
}

TEST(ThemeFile, IsRefusedOrUnharmedWhateverByteIsWrongAndWhereverItEnds) {
    const Bytes file = themeFile(good());
    for (std::size_t place = 0; place < file.size(); ++place) {
        EXPECT_FALSE(readThemeFile(ByteView(file).first(place), "cut")) << place;
        for (const unsigned flip : {0x01u, 0x80u, 0xFFu}) {
            Bytes other = file;
            other[place] = static_cast<std::uint8_t>(other[place] ^ flip);
            const auto read = readThemeFile(other, "flipped");
            EXPECT_TRUE(!read || *read == (ThemePackage{kTheme, {{"com.example.atlas.png", picture()}}}))
                << place;
        }
    }
}

} // namespace tavrik::test
