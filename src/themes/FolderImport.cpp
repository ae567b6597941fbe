#include "themes/FolderImport.h"

#include "icons/IconStore.h"
#include "icons/ImageIntake.h"
#include "model/catalogue/AppManager.h"
#include "platform/OnAllCores.h"
#include "platform/Path.h"
#include "themes/ThemeIconName.h"
#include "themes/ThemeManager.h"

#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

namespace tavrik {

namespace {

constexpr int kIconSide = 1024; ///< pixels; more is not needed

/// An application, the pictures that fit it equally well, and the icon that came of them.
struct Choice {
    std::vector<IconMatch> candidates;
    IconMatch taken;
    Result<Bytes> png = Error{};
};

std::vector<Choice> choicesOf(const IconMatches& matches, bool acceptsDoubtful) {
    std::map<std::string, Choice> choices;
    const auto add = [&choices](const std::vector<IconMatch>& list) {
        for (const IconMatch& match : list)
            choices[match.bundleID].candidates.push_back(match);
    };
    add(matches.sure);
    add(matches.alternatives);
    if (acceptsDoubtful)
        add(matches.doubtful);
    std::vector<Choice> list;
    for (auto& [bundleID, choice] : choices)
        list.push_back(std::move(choice));
    return list;
}

bool isDrawing(const std::string& fileName) {
    std::string extension = HostPath(fileName).extension();
    std::ranges::transform(extension, extension.begin(), [](char c) { return c | 0x20; });
    return extension == "svg" || extension == "svgz";
}

/// The best picture of those that can be read, or why the first one cannot.
void choose(Choice& choice, const PictureFolder& folder) {
    using Rank = std::tuple<int, bool, std::string>; // the smallest is the best
    std::optional<Rank> best;
    QImage picture;
    std::optional<Error> failed;
    for (const IconMatch& candidate : choice.candidates) {
        const auto content = folder.read(candidate.fileName);
        const Result<QImage> read =
            content ? readPicture(*content, candidate.fileName) : Result<QImage>(content.error());
        if (!read) {
            failed = failed.value_or(read.error());
            continue;
        }
        const int side = std::min(kIconSide, std::max(read->width(), read->height()));
        Rank rank(-side, !isDrawing(candidate.fileName), candidate.fileName);
        if (best && *best <= rank)
            continue;
        best = std::move(rank);
        picture = *read;
        choice.taken = candidate;
    }
    if (!best) {
        choice.png = *failed;
        return;
    }
    auto icon = AppManager::iconPicture(picture, choice.taken.bundleID, choice.taken.appName);
    choice.png = icon ? Result<Bytes>(std::move(icon->png)) : icon.error();
}

} // namespace

Result<FolderImportReport> importFolder(const PictureFolder& folder, const std::vector<ApplicationInfo>& apps,
                                        const FolderImportOptions& options, const FontReplacer& fonts,
                                        ThemeManager& themes) {
    if (const Status free = themes.checkNewName(options.themeName); !free)
        return free.error();
    FolderImportReport report{
        .theme = {}, .matches = matchIcons(folder.names, apps, fonts), .taken = {}, .failed = {}};
    std::vector<Choice> choices = choicesOf(report.matches, options.acceptsDoubtful);
    ignoreFailure(onAllCores(choices.size(), [&](std::size_t number) {
        choose(choices[number], folder);
        return Done{}; // one that fails keeps no other out
    }));

    std::map<std::string, Bytes> icons;
    for (Choice& choice : choices) {
        const auto fileName = themeIconName(choice.candidates.front().bundleID);
        if (!choice.png || !fileName) {
            report.failed.push_back((choice.png ? fileName.error() : choice.png.error()).description);
            continue;
        }
        icons.emplace(*fileName, std::move(*choice.png));
        report.taken.push_back(choice.taken);
    }
    if (icons.empty())
        return report;
    auto theme = themes.createTheme(options.themeName, icons);
    if (!theme)
        return theme.error();
    report.theme = std::move(*theme);
    return report;
}

} // namespace tavrik
