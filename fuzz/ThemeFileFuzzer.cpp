#include "platform/Png.h"
#include "themes/ThemeFile.h"
#include "themes/ThemeIconCheck.h"
#include "themes/ThemeManifest.h"
#include "themes/ZipWriter.h"

#include <QImageReader>
#include <QLoggingCategory>

#include <algorithm>
#include <cstdlib>
#include <string_view>

using namespace tavrik;

namespace {

const Theme kTheme{.themeID = "abcdefgh01234567", .name = "Ocean", .createdDate = {1}};

void require(bool holds) {
    if (!holds)
        std::abort();
}

Bytes smallPicture() {
    QImage image(2, 2, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::red);
    return *png::encode(image);
}

/// A good file with single bytes exchanged: three bytes of the input each, the place and the new one.
Bytes damaged(ByteView edits) {
    static const Bytes good =
        *writeThemeFile({.theme = kTheme, .icons = {{"com.example.atlas.png", smallPicture()}}});
    Bytes file = good;
    for (; edits.size() >= 3; edits = edits.subspan(3))
        file[(std::size_t{edits[0]} << 8 | edits[1]) % file.size()] = edits[2];
    return file;
}

/// A whole archive of entries out of the input, each a name and a content of which the first byte tells the
/// length, listed as they are: what lies behind headers, hashes and sizes is reached.
Bytes assembled(ByteView input) {
    const auto take = [&input](std::size_t most) {
        const std::size_t length = input.empty() ? 0 : std::min<std::size_t>(input[0] % most, input.size() - 1);
        const ByteView taken = input.empty() ? input : input.subspan(1, length);
        input = input.subspan(std::min(input.size(), length + 1));
        return taken;
    };
    zip::Writer archive;
    ManifestEntries lines;
    static const Bytes record = *encodeTheme(kTheme);
    static const Bytes picture = smallPicture();
    std::vector<std::pair<std::string, ByteView>> entries{{"Info.plist", record}};
    while (!input.empty() && entries.size() < 4) {
        const std::string name = "Icons/" + std::string(textOf(take(32)));
        const ByteView content = take(200);
        entries.emplace_back(name, content.empty() ? picture : content);
    }
    for (const auto& [name, content] : entries)
        lines[name] = {.size = content.size(), .hash = sha256(content)};
    if (const auto manifest = encodeManifest(lines))
        archive.add("Manifest.plist", *manifest);
    for (const auto& [name, content] : entries)
        archive.add(name, content);
    return archive.finish();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.imageio=false"));
    return 0;
}

/// What is read has good names, and written again it is read as the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    const ByteView input(data + 1, size - 1);
    const Bytes file = data[0] % 4 == 0   ? Bytes(input.begin(), input.end())
                       : data[0] % 4 == 1 ? assembled(input)
                                          : damaged(input);
    const auto read = readThemeFile(file, "fuzz");
    if (!read)
        return 0;
    require(std::ranges::all_of(read->icons, [](const auto& icon) { return isPortableIconName(icon.first); }));
    const auto written = writeThemeFile(*read);
    require(bool(written));
    const auto again = readThemeFile(*written, "fuzz");
    require(again && again->theme == read->theme && again->icons == read->icons);
    return 0;
}
