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

std::vector<Choice> choicesOf(const std::vector<IconMatch>& matches) {
    std::map<std::string, Choice> choices;
    for (const IconMatch& match : matches)
        choices[match.bundleID].candidates.push_back(match);
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
    IconMatches matches = matchIcons(folder.names, apps, fonts);
    std::vector<IconMatch> chosen = matches.sure;
    chosen.insert(chosen.end(), matches.alternatives.begin(), matches.alternatives.end());
    if (options.acceptsDoubtful)
        chosen.insert(chosen.end(), matches.doubtful.begin(), matches.doubtful.end());
    auto report = importMatches(folder, chosen, options.themeName, themes);
    if (report)
        report->matches = std::move(matches);
    return report;
}

Result<FolderImportReport> importMatches(const PictureFolder& folder, const std::vector<IconMatch>& chosen,
                                         const std::string& themeName, ThemeManager& themes) {
    if (const Status free = themes.checkNewName(themeName); !free)
        return free.error();
    FolderImportReport report;
    std::vector<Choice> choices = choicesOf(chosen);
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
    auto theme = themes.createTheme(themeName, icons);
    if (!theme)
        return theme.error();
    report.theme = std::move(*theme);
    return report;
}

} // namespace tavrik
