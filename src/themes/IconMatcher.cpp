#include "themes/IconMatcher.h"

#include "fonts/FontReplacer.h"
#include "platform/Path.h"
#include "themes/MatchableName.h"

#include <QString>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <set>
#include <tuple>

namespace tavrik {

namespace {

/// Found by looking at what an icon theme of 9,600 files gives for some sixty applications: below it hardly a
/// guess is right.
constexpr double kLowestScore = 0.68;

/// The sure ways to match, the surest first.
enum class Way { identifier, name, folded, withoutVersion, lastPart, identifiersLastPart };

constexpr std::array kWays = {Way::identifier,     Way::name,     Way::folded,
                              Way::withoutVersion, Way::lastPart, Way::identifiersLastPart};

MatchKind kindOf(Way way) {
    if (way == Way::identifier)
        return MatchKind::identifier;
    return way == Way::name ? MatchKind::name : MatchKind::foldedName;
}

std::string keyOf(const std::u32string& text) {
    return QString::fromStdU32String(text).toStdString();
}

std::string inSmallLetters(std::string text) {
    for (char& letter : text)
        letter = letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    return text;
}

/// "Calculator" of "org.gnome.Calculator"; empty when the text is no such identifier, or when that part says
/// nothing.
std::string lastPartOf(const std::string& identifier) {
    static const std::set<std::string> kSayingNothing = {"app",    "application", "client", "desktop", "gui",
                                                         "ios",    "launcher",    "mac",    "macos",   "main",
                                                         "macosx", "osx",         "program"};
    const bool isIdentifier =
        std::ranges::count(identifier, '.') >= 2 && identifier.find(' ') == std::string::npos;
    const std::string part = isIdentifier ? identifier.substr(identifier.rfind('.') + 1) : std::string();
    return kSayingNothing.contains(inSmallLetters(part)) ? std::string() : part;
}

/// A file or an application under its names, and what it is found by in each way.
struct Named {
    std::vector<MatchableName> names; ///< the first ones are its own
    std::array<std::set<std::string>, kWays.size()> keys;

    std::set<std::string>& keysOf(Way way) { return keys[static_cast<std::size_t>(way)]; }

    void add(Way way, const std::string& key) {
        if (!key.empty())
            keysOf(way).insert(key);
    }

    void addName(const std::string& name, const FontReplacer& fonts) {
        const MatchableName& prepared = names.emplace_back(matchable(name, fonts));
        add(Way::name, name);
        add(Way::folded, keyOf(prepared.letters));
        add(Way::withoutVersion, keyOf(prepared.core));
    }
};

struct File : Named {
    std::string name;
    bool isUsed = false;
    bool isSurplus = false; ///< fits an application that has a surer one
};

struct App : Named {
    const ApplicationInfo* info = nullptr;
    std::optional<Way> takenBy;
    bool isGuessed = false;
    const File* contested = nullptr; ///< fits another application equally well
    Way contestedBy{};
};

File fileNamed(const std::string& name, const FontReplacer& fonts) {
    const std::string stem = HostPath(name).stem();
    File file;
    file.name = name;
    file.add(Way::identifier, inSmallLetters(stem));
    file.addName(stem, fonts);
    if (const std::string part = lastPartOf(stem); !part.empty()) {
        const MatchableName& prepared = file.names.emplace_back(matchable(part, fonts));
        file.add(Way::lastPart, keyOf(prepared.core));
    }
    file.keysOf(Way::identifiersLastPart) = file.keysOf(Way::lastPart);
    file.add(Way::identifiersLastPart, keyOf(file.names.front().core));
    return file;
}

/// Whether a text is just one of several words: "drive" of "Nimbus Drive".
bool isOneWordOf(const MatchableName& part, const MatchableName& name) {
    const auto place = name.letters.find(part.letters);
    if (place == std::u32string::npos || part.letters.size() == name.letters.size())
        return false;
    const std::size_t end = place + part.letters.size();
    return name.starts[place] && (end == name.letters.size() || name.starts[end]);
}

App appOf(const ApplicationInfo& info, const FontReplacer& fonts) {
    App app;
    app.info = &info;
    app.add(Way::identifier, inSmallLetters(info.bundleID));
    app.addName(fonts.convertToNormal(info.name), fonts);
    if (const std::string bundle = info.path.stem(); bundle != info.name && !bundle.empty())
        app.addName(bundle, fonts);
    app.keysOf(Way::lastPart) = app.keysOf(Way::withoutVersion);
    if (const std::string part = lastPartOf(info.bundleID); !part.empty()) {
        const MatchableName prepared = matchable(part, fonts);
        if (std::ranges::none_of(app.names, [&](const auto& name) { return isOneWordOf(prepared, name); })) {
            app.add(Way::identifiersLastPart, keyOf(prepared.core));
            app.names.push_back(prepared);
        }
    }
    return app;
}

IconMatch matchOf(const File& file, const App& app, MatchKind kind, double score = 1) {
    return {file.name, app.info->bundleID, app.info->name, kind, score};
}

/// One way for all files that are left.
void matchBy(Way way, std::vector<File>& files, std::vector<App>& apps, IconMatches& matches) {
    std::map<std::string, std::vector<App*>> appsByKey;
    for (App& app : apps) {
        for (const std::string& key : app.keysOf(way))
            appsByKey[key].push_back(&app);
    }
    for (File& file : files) {
        std::set<App*> found;
        for (const std::string& key : file.keysOf(way)) {
            if (const auto entry = appsByKey.find(key); !file.isUsed && entry != appsByKey.end())
                found.insert(entry->second.begin(), entry->second.end());
        }
        file.isSurplus = file.isSurplus || !found.empty();
        std::erase_if(found, [way](const App* app) { return app->takenBy && app->takenBy != way; });
        file.isUsed = file.isUsed || !found.empty();
        if (found.size() == 1) {
            App& app = **found.begin();
            (app.takenBy ? matches.alternatives : matches.sure).push_back(matchOf(file, app, kindOf(way)));
            app.takenBy = way;
            continue;
        }
        for (App* app : found) {
            if (!app->contested)
                std::tie(app->contested, app->contestedBy) = std::tuple(&file, way);
        }
    }
}

/// Files that fit several applications, for those that are left.
void takeContested(std::vector<App>& apps, IconMatches& matches) {
    for (App& app : apps) {
        app.isGuessed = !app.takenBy && app.contested;
        if (app.isGuessed)
            matches.doubtful.push_back(matchOf(*app.contested, app, kindOf(app.contestedBy)));
    }
}

double bestScore(const Named& file, const Named& app) {
    double best = 0;
    for (const MatchableName& name : file.names) {
        for (const MatchableName& other : app.names)
            best = std::max(best, similarity(name, other));
    }
    return best;
}

/// For each application that is left the best file that is left, the highest score first.
void guess(std::vector<File>& files, std::vector<App>& apps, IconMatches& matches) {
    struct Guess {
        double score = 0;
        std::size_t app = 0;
        std::size_t file = 0;

        auto order() const { return std::tuple(-score, app, file); }
    };

    std::vector<Guess> guesses;
    for (std::size_t app = 0; app < apps.size(); ++app) {
        if (apps[app].takenBy || apps[app].isGuessed)
            continue;
        for (std::size_t file = 0; file < files.size(); ++file) {
            if (files[file].isSurplus)
                continue;
            const double score = bestScore(files[file], apps[app]);
            if (score >= kLowestScore)
                guesses.push_back({score, app, file});
        }
    }
    std::ranges::sort(guesses, {}, &Guess::order);
    for (const Guess& guess : guesses) {
        App& app = apps[guess.app];
        File& file = files[guess.file];
        if (app.isGuessed || file.isUsed)
            continue;
        app.isGuessed = file.isUsed = true;
        matches.doubtful.push_back(matchOf(file, app, MatchKind::subsequence, guess.score));
    }
}

} // namespace

IconMatches matchIcons(const std::vector<std::string>& fileNames, const std::vector<ApplicationInfo>& apps,
                       const FontReplacer& fonts) {
    // In an order of their own.
    std::vector<File> files;
    for (const std::string& name : std::set<std::string>(fileNames.begin(), fileNames.end()))
        files.push_back(fileNamed(name, fonts));
    std::vector<App> prepared;
    for (const ApplicationInfo& app : apps)
        prepared.push_back(appOf(app, fonts));
    std::ranges::sort(prepared, {}, [](const App& app) { return app.info->bundleID; });

    IconMatches matches;
    for (const Way way : kWays)
        matchBy(way, files, prepared, matches);
    takeContested(prepared, matches);
    guess(files, prepared, matches);

    for (std::vector<IconMatch>* list : {&matches.sure, &matches.alternatives, &matches.doubtful})
        std::ranges::sort(*list, {},
                          [](const IconMatch& match) { return std::tie(match.bundleID, match.fileName); });
    for (const File& file : files) {
        if (!file.isUsed)
            matches.unmatched.push_back(file.name);
    }
    return matches;
}

} // namespace tavrik
