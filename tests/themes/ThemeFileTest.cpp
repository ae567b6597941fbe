#include "themes/ThemeFile.h"

#include "platform/Icns.h"
#include "platform/Png.h"
#include "themes/ThemeManifest.h"
#include "themes/ZipFormat.h"
#include "themes/ZipWriter.h"

#include <archive.h>
#include <archive_entry.h>
#include <gmock/gmock.h>
#include <libdeflate.h>

#include <algorithm>
#include <vector>

namespace tavrik::test {

namespace {

using testing::HasSubstr;

const std::string kIcon = "Icons/com.example.atlas.png";
const Theme kTheme{.themeID = "abcdefgh01234567", .name = "Océan", .createdDate = {794'000'000.123456}};

QImage square(int side) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::red);
    return image;
}

Bytes picture(int side = 2) {
    return *png::encode(square(side));
}

Bytes text(std::string_view characters) {
    const ByteView bytes = bytesOf(characters);
    return {bytes.begin(), bytes.end()};
}

ThemePackage package() {
    return {.theme = kTheme,
            .icons = {{"com.example.atlas.png", picture(3)},
                      {"com.example.zebra.icns", icns::encode(square(16))},
                      {"com.example.été.png", picture(1)}}};
}

/// An archive that is put together by hand. Its manifest lists what is in it unless it has one already.
struct Archive {
    std::vector<std::pair<std::string, Bytes>> entries{{"Info.plist", *encodeTheme(kTheme)},
                                                       {kIcon, picture()}};

    Archive with(const std::string& name, Bytes content = picture()) const {
        Archive other = *this;
        other.entries.emplace_back(name, std::move(content));
        return other;
    }

    Archive without(const std::string& name) const {
        Archive other = *this;
        std::erase_if(other.entries, [&](const auto& entry) { return entry.first == name; });
        return other;
    }

    ManifestEntries listed() const {
        ManifestEntries lines;
        for (const auto& [name, content] : entries)
            lines[name] = {.size = content.size(), .hash = sha256(content)};
        return lines;
    }

    Bytes file(const ManifestEntries& lines) const {
        const auto manifest = encodeManifest(lines); // XML cannot hold every name
        zip::Writer writer;
        writer.add("Manifest.plist", manifest ? *manifest : Bytes());
        for (const auto& [name, content] : entries)
            writer.add(name, content);
        return writer.finish();
    }

    Bytes file() const { return file(listed()); }
};

constexpr std::ptrdiff_t kUnused = 4; ///< the version needed, which nobody looks at

/// The file with other bytes in both headers of its last entry, at these places.
Bytes patched(Bytes file, std::ptrdiff_t local, std::ptrdiff_t central, const Bytes& bytes) {
    constexpr std::string_view kLocal("PK\3\4");
    constexpr std::string_view kCentral("PK\1\2");
    std::ranges::copy(bytes, std::find_end(file.begin(), file.end(), kLocal.begin(), kLocal.end()) + local);
    std::ranges::copy(bytes,
                      std::find_end(file.begin(), file.end(), kCentral.begin(), kCentral.end()) + central);
    return file;
}

/// The icon is so many zeros, deflated; both headers and the manifest claim another size.
Bytes deflated(std::size_t zeros, std::uint32_t claimed) {
    const Bytes plain(zeros);
    libdeflate_compressor* compressor = libdeflate_alloc_compressor(1);
    Bytes packed(libdeflate_deflate_compress_bound(compressor, zeros));
    packed.resize(libdeflate_deflate_compress(compressor, plain.data(), zeros, packed.data(), packed.size()));
    libdeflate_free_compressor(compressor);
    const Archive archive = Archive().without(kIcon).with(kIcon, packed);
    ManifestEntries lines = archive.listed();
    lines[kIcon] = {.size = claimed, .hash = sha256(plain)};
    Bytes size;
    zip::appendLittleEndian(size, claimed);
    return patched(patched(archive.file(lines), 22, 24, size), 8, 10, {zip::kDeflated, 0});
}

Bytes withManifest(std::string_view xml) {
    zip::Writer writer;
    writer.add("Manifest.plist", bytesOf(xml));
    return writer.finish();
}

Bytes withIcon(const std::string& name, Bytes content) {
    return Archive().with("Icons/" + name, std::move(content)).file();
}

Bytes withIcons(std::size_t count, const Bytes& icon = picture()) {
    Archive archive;
    while (archive.entries.size() < count + 1)
        archive.entries.emplace_back("Icons/app" + std::to_string(archive.entries.size()) + ".png", icon);
    return archive.file();
}

Bytes cut(Bytes bytes, std::size_t by) {
    bytes.resize(bytes.size() - by);
    return bytes;
}

/// By another implementation: the entries as it sees them.
std::map<std::string, Bytes> readByLibarchive(const Bytes& file) {
    std::map<std::string, Bytes> found;
    archive* reader = archive_read_new();
    archive_read_support_format_zip_seekable(reader);
    EXPECT_EQ(archive_read_open_memory(reader, file.data(), file.size()), ARCHIVE_OK);
    for (archive_entry* entry = nullptr; archive_read_next_header(reader, &entry) == ARCHIVE_OK;) {
        Bytes& content = found[archive_entry_pathname(entry)];
        content.resize(static_cast<std::size_t>(archive_entry_size(entry)));
        EXPECT_EQ(archive_read_data(reader, content.data(), content.size()), std::ssize(content));
    }
    EXPECT_EQ(archive_read_free(reader), ARCHIVE_OK);
    return found;
}

/// By another implementation: compressed, with the folder, times, owners, and sizes behind the content.
Bytes writtenByLibarchive(const std::map<std::string, Bytes>& entries) {
    Bytes file(1 << 20);
    std::size_t used = 0;
    archive* writer = archive_write_new();
    archive_write_set_format_zip(writer);
    EXPECT_EQ(archive_write_open_memory(writer, file.data(), file.size(), &used), ARCHIVE_OK);
    for (const auto& [name, content] : entries) {
        archive_entry* entry = archive_entry_new();
        archive_entry_set_pathname(entry, name.c_str());
        archive_entry_set_mode(entry, name.ends_with('/') ? 0040755 : 0100600);
        archive_entry_set_mtime(entry, 1'700'000'000, 0);
        archive_entry_set_size(entry, std::ssize(content));
        EXPECT_EQ(archive_write_header(writer, entry), ARCHIVE_OK);
        archive_write_data(writer, content.data(), content.size());
        archive_entry_free(entry);
    }
    archive_write_free(writer);
    return cut(file, file.size() - used);
}

} // namespace

TEST(ThemeFile, ComesBackAsItWasAndIsWrittenTheSameAgain) {
    for (const ThemePackage& whole : {package(), ThemePackage{.theme = kTheme, .icons = {}}}) {
        const auto file = writeThemeFile(whole);
        const auto read = readThemeFile(*file, "Ocean.tavriktheme");
        ASSERT_TRUE(read) << read.error().description;
        EXPECT_EQ(*read, whole);
        EXPECT_EQ(*writeThemeFile(*read), *file);
    }
}

TEST(ThemeFile, IsReadAndWrittenByAnotherZipProgram) {
    ThemePackage ascii = package();
    ascii.icons.erase("com.example.été.png"); // which libarchive reads or not, as the locale is
    const Bytes file = *writeThemeFile(ascii);
    auto entries = readByLibarchive(file);
    EXPECT_EQ(entries.size(), 2 + ascii.icons.size());
    for (const auto& [name, content] : ascii.icons)
        EXPECT_EQ(entries["Icons/" + name], content) << name;
    entries["Icons/"] = {};
    const Bytes other = writtenByLibarchive(entries);
    EXPECT_LT(other.size(), file.size()) << "nothing was compressed";
    EXPECT_EQ(*readThemeFile(other, "other"), ascii);
}

TEST(ThemeFile, RefusesWhatIsNoThemeWithASentence) {
    const Archive good;
    ASSERT_TRUE(readThemeFile(good.file(), "x"));
    ASSERT_TRUE(readThemeFile(withIcons(kMostThemeIcons), "x"));
    const std::string invalid = "Invalid theme format: “x” ";
    const std::string missing = "Theme is missing required files: “x” has no ";
    ManifestEntries longer = good.listed();
    longer[kIcon].size += 1;
    ManifestEntries changed = good.listed();
    std::ranges::reverse(changed[kIcon].hash);
    ManifestEntries more = good.listed();
    more["Icons/other.png"] = {};
    ManifestEntries fewer = good.listed();
    fewer.erase(kIcon);
    Bytes twoNames = good.file();
    *std::ranges::search(twoNames, bytesOf("Manifest")).begin() = 'm';
    const Bytes largeHeader = cut(picture(4096), picture(4096).size() - 40);
    const auto versioned = [](const std::string& version) {
        return withManifest("<plist version=\"1.0\"><dict><key>formatVersion</key><integer>" + version +
                            "</integer><key>news</key><true/></dict></plist>");
    };

    const std::vector<std::pair<Bytes, std::string>> cases{
        {{}, invalid + "is no zip archive"},
        {text("<svg/>"), invalid + "is no zip archive"},
        {text("PK"), invalid + "is cut short"},
        {cut(good.file(), 1), invalid + "is cut short, or has something behind its end"},
        {good.with(kIcon).file(), "two files that a Mac takes for one"},
        {good.with("Icons/com.example.Atlas.PNG").file(), "two files that a Mac takes for one"},
        {good.with("Icons/\u00E9.png").with("Icons/e\u0301.png").file(), "two files that a Mac takes for one"},
        {good.with("Icons/straße.png").with("Icons/STRASSE.png").file(), "two files that a Mac takes for one"},
        {patched(good.file(), 6, 8, {1, 0}), invalid + "is encrypted"},
        {patched(good.file(), 6, 8, {0, 0x20}), invalid + "is encrypted"},
        {patched(good.file(), 8, 10, {93, 0}), invalid + "is compressed in a way that cannot be read"},
        {patched(good.file(), kUnused, 41, {0xA1}), invalid + "holds a link"},
        {patched(good.file(), kUnused, 41, {0x11}), invalid + "holds a link"},
        {patched(good.file(), kUnused, 41, {0x41}), invalid + "holds a link"},
        {twoNames, invalid + "is damaged"},
        {good.without("Info.plist").file(), missing + "“Info.plist”"},
        {good.file(more), missing + "“Icons/other.png”"},
        {writtenByLibarchive({{"Info.plist", *encodeTheme(kTheme)}}), missing + "“Manifest.plist”"},
        {good.file(fewer), "“Icons/com.example.atlas.png”, which its manifest does not list"},
        {good.file(longer), "in another size than its manifest says"},
        {good.file(changed), "which is not the one that its manifest lists"},
        {patched(good.file(), 14, 16, {1, 2, 3, 4}), "which is damaged"},
        {deflated(10, 32u << 20), "which is damaged"},
        {deflated(1 << 20, 1000), "which is damaged"},
        {deflated(100, 101), "which is damaged"},
        {deflated(33u << 20, 33u << 20), "which is larger than 32 MB"},
        {withIcons(kMostThemeIcons + 1), invalid + "holds more than 5000 icons"},
        {withIcons(kMostThemeIcons + 9), invalid + "holds more than 5003 files"},
        {withIcons(513, largeHeader), invalid + "holds too many large pictures"},
        {versioned("0"), invalid + "has a damaged manifest"},
        {versioned("1"), invalid + "has a damaged manifest"},
        {withManifest("formatVersion"), invalid + "has a damaged manifest"},
        {versioned("2"), invalid + "has the format 2 of a newer version of Tavrik"},
        {good.without("Info.plist").with("Info.plist", text("{}")).file(), "Invalid theme format: "},
        {withIcon("a.png", cut(picture(), 12)), "“a.png” is cut short"},
        {withIcon("a.png", text("<svg xmlns='http://www.w3.org/2000/svg'/>")), "“a.png” is no PNG picture"},
        {withIcon("a.png", icns::encode(square(16))), "“a.png” is no PNG picture"},
        {withIcon("a.icns", picture()), "“a.icns” is no ICNS picture"},
        {withIcon("a.icns", text("icns")), "“a.icns” is an icon file without a picture"},
        {withIcon("a.png", *png::encode(square(1).scaled(4097, 1))), "“a.png” is 4097 by 1 pixels"},
    };
    for (const auto& [file, sentence] : cases) {
        const auto read = readThemeFile(file, "x");
        ASSERT_FALSE(read) << sentence;
        EXPECT_THAT(read.error().description, HasSubstr(sentence));
    }
}

TEST(ThemeFile, TakesNoNameThatLeadsElsewhereOrHides) {
    using namespace std::string_literals;
    for (const std::string& unsafe :
         {""s, "/Info.plist"s, "../Info.plist"s, "Icons/../a.png"s, "Icons/./a.png"s, "Icons//a.png"s,
          "Icons\\a.png"s, "Icons/a\\b.png"s, "C:a.png"s, "Icons/a:b.png"s, "Icons/a\n.png"s, "Icons/a\0.png"s,
          "Icons/\xFF.png"s, "Icons/\xC3.png"s, "Icons/-a.png"s, "Icons/" + std::string(256, 'a')}) {
        const auto read = readThemeFile(Archive().with(unsafe).file(), "x");
        EXPECT_THAT(read ? "" : read.error().description, HasSubstr("which is not safe")) << unsafe;
    }
    for (const std::string foreign :
         {"Icons/a.txt", "Icons/a", "Icons/.png", "Icons/.a.png", "Icons/sub/a.png", "Icons/sub/",
          "Icons/a\u202E.png", "a.png", "__MACOSX/Icons/a.png", "Info.plist/"}) {
        const Archive archive = Archive().with(foreign, foreign.ends_with('/') ? Bytes() : picture());
        Bytes file = archive.file();
        const auto read =
            readThemeFile(foreign.ends_with('/') ? patched(file, kUnused, 40, {0, 0}) : file, "x");
        EXPECT_THAT(read ? "" : read.error().description, HasSubstr("which does not belong in a theme"));
        const std::string fileName = foreign.substr(foreign.find('/') + 1);
        if (foreign.starts_with("Icons/")) {
            EXPECT_FALSE(writeThemeFile({.theme = kTheme, .icons = {{fileName, picture()}}})) << foreign;
        }
    }
}

TEST(ThemeFile, IsRefusedOrUnharmedWhateverByteIsWrongAndWhereverItEnds) {
    const Bytes file = Archive().file();
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
