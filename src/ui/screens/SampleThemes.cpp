#include "ui/screens/SampleThemes.h"

#include "platform/HostFile.h"
#include "platform/OnAllCores.h"
#include "platform/Png.h"
#include "platform/SerialQueue.h"
#include "practice/furnish/SampleApps.h"
#include "themes/ThemeIconName.h"
#include "ui/Program.h"
#include "ui/screens/Stagehand.h"

#include <QColor>

#include <array>
#include <atomic>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tavrik {

namespace {

using practice::IconStyle;
using practice::Outline;

constexpr int kIconSide = 256; // pixels

struct SampleTheme {
    const char* name;
    int every; ///< leaves out one application of so many; 0 leaves out none
    IconStyle (*styleOf)(IconStyle own, int place);
};

IconStyle graphite(IconStyle own, int place) {
    own.outline = Outline::squircle;
    own.top = QColor::fromHsl(220, 10, 112 + place % 3 * 14);
    own.bottom = QColor::fromHsl(222, 14, 46 + place % 3 * 8);
    return own;
}

IconStyle tide(IconStyle own, int place) {
    own.outline = Outline::round;
    const int hue = 172 + place * 7 % 48;
    own.top = QColor::fromHsl(hue, 190, 158);
    own.bottom = QColor::fromHsl(hue + 22, 200, 88);
    return own;
}

IconStyle sherbet(IconStyle own, int place) {
    own.outline = Outline::squircle;
    const int hue = place * 47 % 360;
    own.top = QColor::fromHsl(hue, 230, 206);
    own.bottom = QColor::fromHsl((hue + 28) % 360, 210, 166);
    return own;
}

IconStyle ember(IconStyle own, int place) {
    own.outline = place % 4 == 1 ? Outline::round : Outline::square;
    const int hue = (340 + place * 5 % 60) % 360;
    own.top = QColor::fromHsl((hue + 24) % 360, 240, 138);
    own.bottom = QColor::fromHsl(hue, 220, 78);
    return own;
}

constexpr std::array<SampleTheme, 4> kThemes = {
    {{"Graphite", 0, graphite}, {"Tide", 9, tide}, {"Sherbet", 4, sherbet}, {"Ember", 2, ember}}};

std::map<std::string, Bytes> iconsOf(const SampleTheme& theme) {
    const auto apps = practice::sampleApps();
    std::vector<Bytes> pictures(apps.size());
    ignoreFailure(onAllCores(apps.size(), [&](std::size_t number) -> Status {
        const auto place = static_cast<int>(number);
        auto png =
            png::encode(practice::drawIcon(theme.styleOf(practice::iconStyle(apps[number]), place), kIconSide));
        if (png && (theme.every == 0 || place % theme.every != 1))
            pictures[number] = std::move(*png);
        return Done{};
    }));
    std::map<std::string, Bytes> icons;
    for (std::size_t number = 0; number < apps.size(); ++number) {
        const auto name = themeIconName(apps[number].identifier);
        if (name && !pictures[number].empty())
            icons.emplace(*name, std::move(pictures[number]));
    }
    return icons;
}

/// Waits for it, with the window alive.
void offMain(const std::function<void()>& work) {
    std::atomic<bool> isDone = false;
    SerialQueue queue("com.tavrik.samples");
    queue.async([&] {
        work();
        isDone = true;
    });
    Stagehand::waitFor([&] { return isDone.load(); }, 60'000);
}

} // namespace

void addSampleThemes(Program& program) {
    offMain([&themes = program.managers().themes] {
        for (const SampleTheme& theme : kThemes)
            ignoreFailure(themes.createTheme(theme.name, iconsOf(theme)));
    });
}

void removeThemes(Program& program) {
    offMain([&themes = program.managers().themes, listed = program.managers().themes.installedThemes()] {
        for (const Theme& theme : listed)
            ignoreFailure(themes.removeTheme(theme.themeID));
    });
}

void writeSamplePictures(const HostPath& folder) {
    struct {
        const char* fileName;
        const char* pictureOf;
    } static constexpr kPictures[] = {{"com.apple.Safari.png", "com.apple.Safari"},
                                      {"Mail.png", "com.apple.mail"},
                                      {"notes.png", "com.apple.Notes"},
                                      {"Maps-v2.png", "com.apple.Maps"},
                                      {"Photos.png", "com.apple.Photos"},
                                      {"text-edit.png", "com.apple.TextEdit"},
                                      {"Music.png", "com.apple.Music"},
                                      {"Dictionry.png", "com.apple.Dictionary"},
                                      {"Termnal.png", "com.apple.Terminal"},
                                      {"wallpaper-01.png", "com.apple.clock"},
                                      {"read-me.png", "com.apple.Chess"}};

    int place = 0;
    for (const auto& [fileName, pictureOf] : kPictures) {
        const auto png = png::encode(practice::drawIcon(
            sherbet(practice::iconStyle(practice::sampleApp(pictureOf)), place++), kIconSide));
        if (png)
            ignoreFailure(writeHostFile(folder / fileName, *png));
    }
}

} // namespace tavrik
